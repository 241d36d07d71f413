#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace support {

/// How often this machine opens each file below a folder, and each folder to list it, whoever does so and by whatever
/// call. What is opened twice before it is closed once may count once.
class OpenCounts {
 public:
  explicit OpenCounts(const std::filesystem::path& root);
  ~OpenCounts();
  OpenCounts(const OpenCounts&) = delete;
  OpenCounts& operator=(const OpenCounts&) = delete;

  /// Since the beginning. Names are below the root, those of folders end in a slash.
  std::map<std::string, int> take();

 private:
  void watch(const std::filesystem::path& folder, const std::string& name);
  void count(const char* events, std::size_t size);

  int notify_ = -1;
  /// By the number of the watch.
  std::map<int, std::string> folders_;
  std::map<std::string, int> counts_;
};

}  // namespace support
