#include "apps/stage/RepositorySettings.h"

#include <algorithm>
#include <cstdlib>

#include "host/files/Paths.h"
#include "host/files/WholeFile.h"

namespace stage {

namespace fs = std::filesystem;

namespace {

fs::path makeFolder() {
  std::error_code ignored;
  std::string name = (fs::temp_directory_path(ignored) / "zorvel-stage-XXXXXX").string();
  return mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

bool fitsOneByte(const std::wstring& text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < 256; });
}

}  // namespace

RepositorySettings::RepositorySettings(const fs::path& repository) : folder_(makeFolder()) {
  if (folder_.empty()) {
    error_ = "No temporary folder can be made.";
    return;
  }
  setenv("LOCALAPPDATA", folder_.c_str(), 1);
  error_ = write(repository);
}

RepositorySettings::~RepositorySettings() {
  std::error_code ignored;
  if (!folder_.empty()) fs::remove_all(folder_, ignored);
}

std::string RepositorySettings::write(const fs::path& repository) const {
  std::error_code error;
  if (!fs::is_directory(repository, error)) return repository.string() + " is not a folder.";
  std::wstring path = host::toWide(fs::absolute(repository).string());
  if (!fitsOneByte(path)) {
    // The plug-in's settings hold one byte a character; such a folder is reached by another name.
    const fs::path link = folder_ / "repository";
    fs::create_directory_symlink(fs::absolute(repository), link, error);
    if (error) return repository.string() + ": " + error.message();
    path = host::toWide(link.string());
  }
  std::string bytes;
  for (const wchar_t c : path + L"\\") bytes.push_back(static_cast<char>(c));
  return host::writeWholeFile(folder_ / "zorvel.ini", bytes);
}

}  // namespace stage
