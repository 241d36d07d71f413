#pragma once

#include <filesystem>
#include <string>

namespace host {

/// A new, empty folder among the system's temporary files, removed at the end with everything in it.
class TemporaryFolder {
 public:
  /// The folder's name begins with the text. Look at path() before anything else.
  explicit TemporaryFolder(const std::string& name = "zorvel-");
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// Empty when the folder could not be made.
  const std::filesystem::path& path() const { return path_; }

  /// All that there are, for a program that ends in the middle: nothing is Uninterrupted any more, other threads may
  /// still write.
  static void removeAll();

 private:
  std::filesystem::path path_;
};

}  // namespace host
