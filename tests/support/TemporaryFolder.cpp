#include "tests/support/TemporaryFolder.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

#include "host/files/Paths.h"

namespace support {

TemporaryFolder::TemporaryFolder() : folder_("zorvel t\xC3\xABst ") {
  if (path().empty()) throw std::runtime_error("no temporary folder");
}

std::wstring TemporaryFolder::wide() const { return host::toWide(path().string()); }

std::filesystem::path TemporaryFolder::write(const std::filesystem::path& relative, std::string_view text) const {
  const std::filesystem::path file = path() / relative;
  std::filesystem::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary);
  stream.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!stream.flush()) throw std::runtime_error("cannot write " + file.string());
  return file;
}

std::filesystem::path TemporaryFolder::makeFolder(const std::filesystem::path& relative) const {
  std::filesystem::create_directories(path() / relative);
  return path() / relative;
}

std::string TemporaryFolder::read(const std::filesystem::path& relative) const {
  std::ifstream stream(path() / relative, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void TemporaryFolder::edit(const std::filesystem::path& relative, const std::string& from,
                           const std::string& to) const {
  std::string text = read(relative);
  text.replace(text.find(from), from.size(), to);  // throws where the text is not there
  write(relative, text);
}

}  // namespace support
