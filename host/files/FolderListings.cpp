#include "host/files/FolderListings.h"

#include <dirent.h>
#include <sys/stat.h>

#include <cerrno>
#include <memory>

#include "host/files/DiskTroubles.h"
#include "host/files/NameCase.h"
#include "host/files/Paths.h"

namespace host {

namespace {

constexpr std::size_t MOST_FOLDERS = 256;
// Times of modification are coarse, two seconds on the coarsest file systems: a folder that changed this recently may
// change again without its time showing it.
constexpr std::time_t UNSETTLED_SECONDS = 3;

std::wstring foldName(const std::string& name) { return inCapitals(toWide(name)); }

bool sameTime(const std::timespec& left, const std::timespec& right) {
  return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

std::unordered_map<std::wstring, std::string> readNames(const std::string& folder) {
  std::unordered_map<std::wstring, std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(folder.c_str()), &::closedir);
  if (!directory) DiskTroubles::instance().note(folder, errno);
  if (!directory) return names;
  errno = 0;
  while (const dirent* entry = ::readdir(directory.get())) {
    const std::string name = entry->d_name;
    std::string& held = names[foldName(name)];
    if (held.empty() || name < held) held = name;
    errno = 0;
  }
  DiskTroubles::instance().note(folder, errno);
  return names;
}

}  // namespace

FolderListings& FolderListings::instance() {
  static FolderListings listings;
  return listings;
}

std::string FolderListings::find(const std::string& folder, const std::string& name) {
  const std::lock_guard<std::mutex> lock(mutex_);
  const Listing* listing = current(folder);
  if (!listing) return name;
  const auto position = listing->names.find(foldName(name));
  return position == listing->names.end() ? name : position->second;
}

const FolderListings::Listing* FolderListings::current(const std::string& folder) {
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode)) return nullptr;
  const auto held = listings_.find(folder);
  if (held != listings_.end() && held->second.settled && sameTime(held->second.modified, status.st_mtim)) {
    return &held->second;
  }
  if (listings_.size() >= MOST_FOLDERS) listings_.clear();
  Listing& listing = listings_[folder];
  listing.modified = status.st_mtim;
  listing.settled = std::time(nullptr) - status.st_mtim.tv_sec > UNSETTLED_SECONDS;
  listing.names = readNames(folder);
  return &listing;
}

}  // namespace host
