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
  m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

std::wstring TemporaryFolder::wide() const { return host::toWide(m_path.string()); }

std::filesystem::path TemporaryFolder::write(const std::filesystem::path& relative, std::string_view text) const {
  const std::filesystem::path file = m_path / relative;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
  return file;
}

std::filesystem::path TemporaryFolder::makeFolder(const std::filesystem::path& relative) const {
  std::filesystem::create_directories(m_path / relative);
  return m_path / relative;
}

std::string TemporaryFolder::read(const std::filesystem::path& relative) const {
  std::ifstream stream(m_path / relative, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace support
