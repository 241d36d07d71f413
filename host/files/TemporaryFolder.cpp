#include "host/files/TemporaryFolder.h"

#include <stdlib.h>

namespace host {

namespace {

std::filesystem::path makeFolder(const std::string& name) {
  std::error_code error;
  std::string pattern = (std::filesystem::temp_directory_path(error) / (name + "XXXXXX")).string();
  return !error && ::mkdtemp(pattern.data()) != nullptr ? std::filesystem::path(pattern) : std::filesystem::path();
}

}  // namespace

TemporaryFolder::TemporaryFolder(const std::string& name) : path_(makeFolder(name)) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
}

}  // namespace host
