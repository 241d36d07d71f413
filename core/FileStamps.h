#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

namespace ZORVEL {

/// What tells one state of a file from another.
struct FileStamp {
  bool exists = false;     ///< false for a folder and for what cannot be reached
  std::uint64_t size = 0;  ///< bytes
  std::uint64_t time = 0;  ///< last written, in steps of 100 ns

  static FileStamp Of(const std::wstring& path);
  bool operator==(const FileStamp& other) const {
    return exists == other.exists && size == other.size && time == other.time;
  }
};

/// Asks the disk once for each path, however often it is asked itself. For the length of one refresh.
class FileStamps {
 public:
  /// Valid until the next call.
  const FileStamp& Get(const std::wstring& path);
  bool Exists(const std::wstring& path) { return Get(path).exists; }
  void Clear() { m_stamps.clear(); }

 private:
  std::unordered_map<std::wstring, FileStamp> m_stamps;
  FileStamp m_viewed;
};

}  // namespace ZORVEL
