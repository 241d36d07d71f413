#pragma once

#include <mutex>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace host {

/// What the disk gave no answer to: a share that is gone, a folder without rights, a read that failed. Windows and the
/// SDK answer then as if nothing were there, so whoever says what a repository holds looks here afterwards.
/// Thread-safe.
class DiskTroubles {
 public:
  static DiskTroubles& instance();

  /// `error` as in errno. One that only says that nothing is there is no trouble.
  void note(const std::string& path, int error);
  void note(const std::string& path, const std::error_code& error) { note(path, error.value()); }

  /// What was there before.
  void noteGone(const std::string& path) { add(path + ": it has gone away meanwhile"); }

  /// Since the last time: one line for each, in the order met; of very many the first ones.
  std::vector<std::string> take();

 private:
  void add(const std::string& line);

  std::mutex mutex_;
  std::set<std::string> known_;
  std::vector<std::string> lines_;
};

}  // namespace host
