#include "bench/check/LinkedFiles.h"

#include <fstream>

namespace bench {

namespace fs = std::filesystem;

void LinkedFiles::write(const fs::path& file, const std::string& bytes) {
  // File systems have their limits.
  constexpr int MOST_LINKS = 50000;
  if (file.parent_path() != folder_) fs::create_directories(folder_ = file.parent_path());
  Written& written = written_[&bytes];
  if (written.links++ % MOST_LINKS != 0) return fs::create_hard_link(written.file, file);
  written.file = file;
  std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace bench
