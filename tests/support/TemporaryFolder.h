#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "host/files/TemporaryFolder.h"

namespace support {

/// A temporary folder with what tests do in it. Its name has a blank and a letter beyond
/// ASCII.
class TemporaryFolder {
 public:
  TemporaryFolder();

  const std::filesystem::path& path() const { return folder_.path(); }
  /// The path as the plug-in takes it, without a trailing separator.
  std::wstring wide() const;

  /// Both make the folders above what they name, and answer its full path.
  std::filesystem::path write(const std::filesystem::path& relative, std::string_view text) const;
  std::filesystem::path makeFolder(const std::filesystem::path& relative) const;
  std::string read(const std::filesystem::path& relative) const;
  /// Replaces the first such text of the file, which has to be there.
  void edit(const std::filesystem::path& relative, const std::string& from, const std::string& to) const;

 private:
  host::TemporaryFolder folder_;
};

}  // namespace support
