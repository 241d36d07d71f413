#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace support {

/// A folder of its own for one test, removed with everything in it at the end. Its name has a blank and a letter beyond
/// ASCII.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  /// The path as the plug-in takes it, without a trailing separator.
  std::wstring wide() const;

  /// Both make the folders above what they name, and answer its full path.
  std::filesystem::path write(const std::filesystem::path& relative, std::string_view text) const;
  std::filesystem::path makeFolder(const std::filesystem::path& relative) const;
  std::string read(const std::filesystem::path& relative) const;

 private:
  std::filesystem::path path_;
};

}  // namespace support
