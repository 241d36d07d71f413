#include "tests/check/OpenCounts.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <vector>

namespace support {

namespace fs = std::filesystem;

OpenCounts::OpenCounts(const fs::path& root) : notify_(inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  std::vector<fs::path> folders = {root};
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
    if (entry.is_directory()) folders.push_back(entry.path());
  }
  // Not before all are known: to look for them opens them.
  for (const fs::path& folder : folders) {
    watch(folder, folder == root ? "" : folder.lexically_relative(root).string() + '/');
  }
}

OpenCounts::~OpenCounts() { ::close(notify_); }

void OpenCounts::watch(const fs::path& folder, const std::string& name) {
  // Equal events that follow each other are one: closing stands between.
  const int number = inotify_add_watch(notify_, folder.c_str(), IN_OPEN | IN_CLOSE);
  if (number < 0) throw std::runtime_error("cannot watch " + folder.string() + ": " + std::strerror(errno));
  folders_[number] = name;
}

std::map<std::string, int> OpenCounts::take() {
  alignas(inotify_event) char events[1 << 16];
  for (ssize_t size = 0; (size = ::read(notify_, events, sizeof events)) > 0;) {
    count(events, static_cast<std::size_t>(size));
  }
  return counts_;
}

void OpenCounts::count(const char* events, std::size_t size) {
  inotify_event event = {};
  for (std::size_t at = 0; at < size; at += sizeof event + event.len) {
    std::memcpy(&event, events + at, sizeof event);
    if ((event.mask & IN_Q_OVERFLOW) != 0) throw std::runtime_error("too many files are opened to be counted");
    if ((event.mask & IN_OPEN) == 0) continue;
    const std::string name = event.len == 0 ? "" : events + at + sizeof event;
    // A folder's own watch tells of it, too.
    const bool isToldTwice = (event.mask & IN_ISDIR) != 0 && !name.empty();
    if (!isToldTwice) ++counts_[folders_.at(event.wd) + name];
  }
}

}  // namespace support
