#include "tests/support/TemporaryFolder.h"

#include <stdlib.h>

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "host/files/Paths.h"

namespace support {

TemporaryFolder::TemporaryFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "zorvel t\xC3\xABst XXXXXX").string();
  if (!::mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::wstring TemporaryFolder::wide() const { return host::toWide(path_.string()); }

std::filesystem::path TemporaryFolder::write(const std::filesystem::path& relative, std::string_view text) const {
  const std::filesystem::path file = path_ / relative;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
  return file;
}

std::filesystem::path TemporaryFolder::makeFolder(const std::filesystem::path& relative) const {
  std::filesystem::create_directories(path_ / relative);
  return path_ / relative;
}

std::string TemporaryFolder::read(const std::filesystem::path& relative) const {
  std::ifstream stream(path_ / relative, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace support
