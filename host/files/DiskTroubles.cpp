#include "host/files/DiskTroubles.h"

#include <cerrno>
#include <utility>

namespace host {

namespace {

/// A share that is gone is met with every file.
constexpr std::size_t MOST_TROUBLES = 20;

bool saysThatNothingIsThere(int error) {
  return error == 0 || error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP ||
         error == EINVAL;
}

}  // namespace

DiskTroubles& DiskTroubles::instance() {
  static DiskTroubles troubles;
  return troubles;
}

void DiskTroubles::note(const std::string& path, int error) {
  if (!saysThatNothingIsThere(error)) add(path + ": " + std::generic_category().message(error));
}

void DiskTroubles::add(const std::string& line) {
  const std::lock_guard<std::mutex> lock(mutex_);
  if (lines_.size() < MOST_TROUBLES && known_.insert(line).second) lines_.push_back(line);
}

std::vector<std::string> DiskTroubles::take() {
  const std::lock_guard<std::mutex> lock(mutex_);
  known_.clear();
  return std::exchange(lines_, {});
}

}  // namespace host
