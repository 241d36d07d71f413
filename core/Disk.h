#pragma once

#include <string>

namespace ZORVEL {

/// What the plug-in asks the file system. A path that cannot be reached, for whatever reason, counts as absent.
class Disk {
 public:
  static bool FolderExists(const std::wstring& path);
  /// True for everything that exists and is no folder.
  static bool FileExists(const std::wstring& path);
  /// True for a file that can be opened and has something in it.
  static bool FileIsReadable(const std::wstring& path);
};

}  // namespace ZORVEL
