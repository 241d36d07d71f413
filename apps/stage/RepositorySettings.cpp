#include "apps/stage/RepositorySettings.h"

#include <algorithm>

#include "host/files/Paths.h"
#include "host/files/WholeFile.h"

namespace stage {

namespace fs = std::filesystem;

namespace {

bool fitsOneByte(const std::wstring& text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t c) { return c < 256; });
}

}  // namespace

RepositorySettings::RepositorySettings(const fs::path& repository)
    : folder_("zorvel-stage-"), appData_(folder_.path()), error_(write(repository)) {}

std::string RepositorySettings::write(const fs::path& repository) const {
  if (folder().empty()) return "No temporary folder can be made.";
  std::error_code error;
  if (!fs::is_directory(repository, error)) return repository.string() + " is not a folder.";
  std::wstring path = host::toWide(fs::absolute(repository).string());
  if (!fitsOneByte(path)) {
    // The plug-in's settings hold one byte a character; such a folder is reached by another name.
    const fs::path link = folder() / "repository";
    fs::create_directory_symlink(fs::absolute(repository), link, error);
    if (error) return repository.string() + ": " + error.message();
    path = host::toWide(link.string());
  }
  std::string bytes;
  for (const wchar_t c : path + L"\\") bytes.push_back(static_cast<char>(c));
  return host::writeWholeFile(folder() / "zorvel.ini", bytes);
}

}  // namespace stage
