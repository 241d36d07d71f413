#include <shlobj.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "host/files/Paths.h"
#include "host/files/Uninterrupted.h"

namespace {

std::string environmentValue(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

/// Empty when the environment tells nothing about the user's folders.
std::filesystem::path localApplicationData() {
  const std::string own = environmentValue("LOCALAPPDATA");
  if (!own.empty()) return own;
  const std::filesystem::path shared = environmentValue("XDG_DATA_HOME");
  if (shared.is_absolute()) return shared;
  const std::string home = environmentValue("HOME");
  return home.empty() ? std::filesystem::path() : std::filesystem::path(home) / ".local" / "share";
}

}  // namespace

HRESULT WINAPI SHGetFolderPathW(HWND /*owner*/, int folder, HANDLE /*token*/, DWORD /*flags*/, LPWSTR path) {
  if (folder != CSIDL_LOCAL_APPDATA || !path) return E_FAIL;
  const std::filesystem::path found = localApplicationData();
  const std::wstring wide = host::toWide(found.string());
  if (wide.empty() || wide.size() >= MAX_PATH) return E_FAIL;
  std::error_code error;
  // It may be a temporary folder.
  const host::Uninterrupted whole;
  std::filesystem::create_directories(found, error);
  if (!std::filesystem::is_directory(found, error)) return E_FAIL;
  std::copy_n(wide.c_str(), wide.size() + 1, path);
  return S_OK;
}
