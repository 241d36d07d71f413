#include "apps/support/OutsideFiles.h"

#include <algorithm>

#include "host/files/FilesRead.h"

namespace apps {

namespace fs = std::filesystem;

namespace {

/// Where it lies; empty for what is gone.
fs::path placeOf(const fs::path& path) {
  std::error_code error;
  return fs::canonical(path, error);
}

bool liesIn(const fs::path& file, const fs::path& folder) {
  return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
}

}  // namespace

std::vector<std::string> notesOnOutsideFiles(const fs::path& repository, const fs::path& asked) {
  const fs::path root = placeOf(repository);
  const fs::path known = placeOf(asked);
  std::vector<std::string> notes;
  for (const fs::path& file : host::FilesRead::list()) {
    const fs::path place = placeOf(file);
    if (place.empty() || place == known || liesIn(place, root)) continue;
    const std::string way = place == file ? std::string() : " (through " + file.string() + ")";
    notes.push_back("note: read from outside the repository: " + place.string() + way);
  }
  return notes;
}

}  // namespace apps
