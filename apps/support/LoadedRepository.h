#pragma once

#include <deque>
#include <filesystem>
#include <string>

#include "apps/support/SettledRoot.h"
#include "repository/ParseObserver.h"

namespace apps {

/// A repository in the plug-in's store, parsed and checked on disk, for as long as this lives; nothing is selected.
/// There is one store, so there may be one of these at a time. The user's own settings file is left alone.
class LoadedRepository {
 public:
  /// Look at error() before anything else.
  explicit LoadedRepository(const std::filesystem::path& root);
  ~LoadedRepository();
  LoadedRepository(const LoadedRepository&) = delete;
  LoadedRepository& operator=(const LoadedRepository&) = delete;

  /// Reads it again into the emptied store. What is chosen stays so, but the assets, which went with their records.
  void read();

  /// One line, with the place in the file where there is one; empty when the repository could be read.
  const std::string& error() const { return error_; }
  /// What the parser refused, skipped or limited in a repository that could be read.
  const std::deque<ZORVEL::ParseNote>& notes() const { return notes_; }

 private:
  std::string tryRead();

  std::filesystem::path root_;
  SettledRoot settings_;
  std::deque<ZORVEL::ParseNote> notes_;
  std::string error_;
};

}  // namespace apps
