#include "host/files/TemporaryFolder.h"

#include <dirent.h>
#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

#include <mutex>
#include <new>
#include <set>
#include <string_view>

#include "host/files/Uninterrupted.h"

namespace host {

namespace {

namespace fs = std::filesystem;

/// Those that there are; never destroyed, as a signal may come while the program ends by itself. Nothing is allocated
/// under the lock: without memory, they are to be removed as well.
class Living {
 public:
  static void add(const fs::path& folder) {
    std::set<fs::path> added = {folder};
    const std::lock_guard lock(all().mutex_);
    all().folders_.merge(added);
  }
  static void remove(const fs::path& folder) {
    const std::lock_guard lock(all().mutex_);
    all().folders_.erase(folder);
  }
  static std::set<fs::path> take() {
    std::set<fs::path> taken;
    const std::lock_guard lock(all().mutex_);
    taken.swap(all().folders_);
    return taken;
  }

 private:
  static Living& all() {
    alignas(Living) static unsigned char memory[sizeof(Living)];
    static Living& living = *new (memory) Living;
    return living;
  }

  std::mutex mutex_;
  std::set<fs::path> folders_;
};

/// Without allocating anything: memory may have run out. What cannot be removed stays.
void removeTree(int folder, const char* name) {
  if (::unlinkat(folder, name, 0) == 0) return;
  const int inside = ::openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (inside < 0) return;
  alignas(dirent64) char entries[2048];
  for (ssize_t size = 0; (size = ::getdents64(inside, entries, sizeof entries)) > 0;) {
    for (ssize_t at = 0; at < size;) {
      const auto* entry = reinterpret_cast<const dirent64*>(entries + at);
      at += entry->d_reclen;
      const std::string_view entryName = entry->d_name;
      if (entryName != "." && entryName != "..") removeTree(inside, entry->d_name);
    }
  }
  ::close(inside);
  ::unlinkat(folder, name, AT_REMOVEDIR);
}

bool isThere(const fs::path& path) { return ::access(path.c_str(), F_OK) == 0; }

fs::path makeFolder(const std::string& name) {
  std::error_code error;
  std::string pattern = (fs::temp_directory_path(error) / (name + "XXXXXX")).string();
  return !error && ::mkdtemp(pattern.data()) != nullptr ? fs::path(pattern) : fs::path();
}

}  // namespace

TemporaryFolder::TemporaryFolder(const std::string& name) {
  const Uninterrupted whole;
  path_ = makeFolder(name);
  if (!path_.empty()) Living::add(path_);
}

TemporaryFolder::~TemporaryFolder() {
  if (path_.empty()) return;
  const Uninterrupted whole;
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  Living::remove(path_);
}

void TemporaryFolder::removeAll() {
  constexpr int MOST_ATTEMPTS = 100;
  for (const fs::path& folder : Living::take()) {
    // What another thread writes meanwhile keeps the folder from being removed.
    for (int i = 0; i < MOST_ATTEMPTS && isThere(folder); ++i) removeTree(AT_FDCWD, folder.c_str());
  }
}

}  // namespace host
