#pragma once

#include <filesystem>
#include <vector>

#include "apps/support/SettledRoot.h"
#include "check/Checker.h"
#include "check/rules/ContentRules.h"
#include "repository/ParseObserver.h"

namespace check {

/// A repository that has been checked, for as long as this lives: in the plug-in's store, and on disk as its index has
/// it. There is one store, so one of these at a time.
class CheckRun {
 public:
  CheckRun(const std::filesystem::path& root, const CheckerOptions& options);
  ~CheckRun() = default;
  CheckRun(const CheckRun&) = delete;
  CheckRun& operator=(const CheckRun&) = delete;

  /// What was found is in the result, no longer in the survey.
  CheckResult& result() { return result_; }
  Survey& survey() { return survey_; }
  /// See CheckResult.
  std::vector<std::filesystem::path> files();
  MaterialLibraryIndex& libraries() { return contents_.libraries(); }

 private:
  /// Empties it at the end.
  struct Store {
    Store() = default;
    ~Store();
    Store(const Store&) = delete;
    Store& operator=(const Store&) = delete;
  };

  /// Whether it could be read, as a whole and within bounds; findings say why not.
  bool readDescription(const CheckerOptions& options);
  void runRules(const CheckerOptions& options);

  apps::SettledRoot settings_;
  std::wstring prefix_;
  FolderIndex files_;
  Description description_;
  Store store_;
  Findings findings_;
  Survey survey_;
  ContentRules contents_;
  ZORVEL::ViewedDisk viewed_;
  ZORVEL::ObservedParsing observed_;
  CheckResult result_;
};

}  // namespace check
