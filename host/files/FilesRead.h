#pragma once

#include <filesystem>
#include <vector>

namespace host {

/// What was opened for reading, so that it can be told and is not written over. One for the process, because what is
/// read may be anywhere. Any thread.
class FilesRead {
 public:
  static void note(const std::filesystem::path& file);
  /// Each once, as it was named, in the order of their names.
  static std::vector<std::filesystem::path> list();
  static void forget();
};

}  // namespace host
