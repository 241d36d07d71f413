#include "host/files/TemporaryFolder.h"

#include <stdlib.h>

#include <mutex>
#include <new>
#include <set>

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
    std::error_code error;
    // What another thread writes meanwhile keeps the folder from being removed.
    for (int i = 0; i < MOST_ATTEMPTS && fs::exists(folder, error); ++i) fs::remove_all(folder, error);
  }
}

}  // namespace host
