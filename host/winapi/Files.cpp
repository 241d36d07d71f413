#include <sys/stat.h>
#include <windows.h>

#include <string>

#include "host/files/Paths.h"

namespace {

std::string openMode(const wchar_t* mode) {
  std::string narrow;
  for (; mode && *mode && *mode != L','; ++mode) {
    if (std::wstring_view(L"rwab+x").find(*mode) != std::wstring_view::npos) narrow += static_cast<char>(*mode);
  }
  return narrow;
}

bool isFolder(std::FILE* file) {
  struct stat status {};
  return ::fstat(::fileno(file), &status) == 0 && S_ISDIR(status.st_mode);
}

/// As written first, which nearly always answers at once.
bool findStatus(const wchar_t* path, struct stat& status) {
  return ::stat(host::nativePath(path).c_str(), &status) == 0 || ::stat(host::resolvePath(path).c_str(), &status) == 0;
}

}  // namespace

DWORD WINAPI GetFileAttributesW(LPCWSTR path) {
  struct stat status {};
  if (!path || !findStatus(path, status)) return INVALID_FILE_ATTRIBUTES;
  return S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
}

std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
  const std::string narrow = openMode(mode);
  if (!path || narrow.empty()) return nullptr;
  std::FILE* file = std::fopen(host::resolvePath(path).c_str(), (narrow + 'e').c_str());
  // Linux opens a folder for reading and fails later; Windows does not open it.
  if (file && isFolder(file)) {
    std::fclose(file);
    return nullptr;
  }
  return file;
}
