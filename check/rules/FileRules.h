#pragma once

#include <string>

#include "check/rules/Survey.h"

namespace check {

/// The repository as a folder: what lies in it, where it may lie, and what is found only by chance.
class FileRules {
 public:
  explicit FileRules(Survey& survey) : survey_(survey) {}

  /// `targetRoot` as in CheckerOptions.
  void run(const std::string& targetRoot);

 private:
  void lookAtOverlays();
  void lookAtLetterCase();
  void lookAtUnreferenced();
  void lookAtKeeping(const std::wstring& root);
  void lookAtLengths(const std::wstring& root);

  Survey& survey_;
};

}  // namespace check
