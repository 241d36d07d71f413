#pragma once

#include <ctime>
#include <mutex>
#include <string>
#include <unordered_map>

namespace host {

/// Finds names without regard to case, from one listing per folder. A listing is used again as long as the folder's
/// time of modification stays the same, so it is never out of date. At most a few hundred folders are remembered.
/// Thread-safe.
class FolderListings {
 public:
  static FolderListings& instance();

  /// The name as it is written in the folder; the given one when nothing there matches or the folder cannot be read. Of
  /// several that match, the first by byte order.
  std::string find(const std::string& folder, const std::string& name);

 private:
  struct Listing {
    std::timespec modified{};
    bool settled = false;
    std::unordered_map<std::wstring, std::string> names;  // by folded name
  };

  const Listing* current(const std::string& folder);

  std::mutex mutex_;
  std::unordered_map<std::string, Listing> listings_;
};

}  // namespace host
