#include <sys/stat.h>
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <ctime>
#include <string>

#include "host/files/DiskTroubles.h"
#include "host/files/Paths.h"
#include "host/files/RegularFile.h"

namespace {

constexpr std::int64_t SECONDS_FROM_1601_TO_1970 = 11'644'473'600;

std::string openMode(const wchar_t* mode) {
  std::string narrow;
  for (; mode && *mode && *mode != L','; ++mode) {
    if (std::wstring_view(L"rwab+x").find(*mode) != std::wstring_view::npos) narrow += static_cast<char>(*mode);
  }
  return narrow;
}

bool look(const std::filesystem::path& path, struct stat& status) {
  if (::stat(path.c_str(), &status) == 0) return true;
  host::DiskTroubles::instance().note(path.string(), errno);
  return false;
}

/// As written first, which nearly always answers at once.
bool findStatus(const wchar_t* path, struct stat& status) {
  return look(host::nativePath(path), status) || look(host::resolvePath(path), status);
}

DWORD attributesOf(const struct stat& status) {
  return S_ISDIR(status.st_mode) ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_NORMAL;
}

FILETIME fileTime(const std::timespec& time) {
  const std::int64_t steps = (time.tv_sec + SECONDS_FROM_1601_TO_1970) * 10'000'000 + time.tv_nsec / 100;
  // Nothing older can be said.
  const auto shown = static_cast<std::uint64_t>(std::max<std::int64_t>(steps, 0));
  return {static_cast<DWORD>(shown), static_cast<DWORD>(shown >> 32U)};
}

/// Linux also opens folders for reading, and waits for the other end of a pipe; Windows has neither.
bool isSpecial(const std::filesystem::path& file) {
  struct stat status {};
  return ::stat(file.c_str(), &status) == 0 && !S_ISREG(status.st_mode);
}

}  // namespace

DWORD WINAPI GetFileAttributesW(LPCWSTR path) {
  struct stat status {};
  if (!path || !findStatus(path, status)) return INVALID_FILE_ATTRIBUTES;
  return attributesOf(status);
}

BOOL WINAPI GetFileAttributesExW(LPCWSTR path, GET_FILEEX_INFO_LEVELS level, LPVOID information) {
  struct stat status {};
  if (!path || !information || level != GetFileExInfoStandard || !findStatus(path, status)) return FALSE;
  WIN32_FILE_ATTRIBUTE_DATA& data = *static_cast<WIN32_FILE_ATTRIBUTE_DATA*>(information);
  data.dwFileAttributes = attributesOf(status);
  data.ftCreationTime = fileTime(status.st_mtim);
  data.ftLastAccessTime = fileTime(status.st_atim);
  data.ftLastWriteTime = fileTime(status.st_mtim);
  const std::uint64_t size = S_ISDIR(status.st_mode) ? 0 : static_cast<std::uint64_t>(status.st_size);
  data.nFileSizeHigh = static_cast<DWORD>(size >> 32U);
  data.nFileSizeLow = static_cast<DWORD>(size);
  return TRUE;
}

std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode) {
  const std::string narrow = openMode(mode);
  if (!path || narrow.empty()) return nullptr;
  const std::filesystem::path file = host::resolvePath(path);
  if (isSpecial(file)) return nullptr;
  if (narrow != "rb" && narrow != "r") return std::fopen(file.c_str(), (narrow + 'e').c_str());
  host::RegularFile regular(file);
  return regular.isOpen() ? ::fdopen(regular.release(), narrow.c_str()) : nullptr;
}
