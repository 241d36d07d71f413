#pragma once

#include <filesystem>
#include <string>

namespace cli {

/// A repository in the plug-in's store, parsed and checked on disk, for as long as this lives. There is one store, so
/// there may be one of these at a time. The user's own settings file is left alone.
class LoadedRepository {
 public:
  /// Look at error() before anything else.
  explicit LoadedRepository(const std::filesystem::path& root);
  ~LoadedRepository();
  LoadedRepository(const LoadedRepository&) = delete;
  LoadedRepository& operator=(const LoadedRepository&) = delete;

  /// One line; empty when the repository could be read.
  const std::string& error() const { return error_; }

 private:
  std::string load(const std::filesystem::path& root) const;

  std::filesystem::path settingsFolder_;
  std::string error_;
};

}  // namespace cli
