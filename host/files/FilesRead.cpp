#include "host/files/FilesRead.h"

#include <mutex>
#include <set>

namespace host {

namespace {

struct Noted {
  std::mutex mutex;
  std::set<std::filesystem::path> files;
};

Noted& noted() {
  static Noted noted;
  return noted;
}

}  // namespace

void FilesRead::note(const std::filesystem::path& file) {
  const std::lock_guard lock(noted().mutex);
  noted().files.insert(file);
}

std::vector<std::filesystem::path> FilesRead::list() {
  const std::lock_guard lock(noted().mutex);
  return {noted().files.begin(), noted().files.end()};
}

void FilesRead::forget() {
  const std::lock_guard lock(noted().mutex);
  noted().files.clear();
}

}  // namespace host
