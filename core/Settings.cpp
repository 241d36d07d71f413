#include "core/Settings.h"

#include <shlobj.h>
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "core/Debug.h"

namespace ZORVEL {

Settings* Settings::m_singleton = nullptr;

namespace {

const std::size_t SHORTEST_PATH = 3;
// Far beyond any path: what is longer is no settings file of ours.
const std::size_t LONGEST_FILE = 1 << 20;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File OpenSettingsFile(const std::wstring& name, const wchar_t* mode) {
  return File(_wfopen(name.c_str(), mode), &std::fclose);
}

PathKeeping KeepingOf(std::size_t length) {
  if (length < SHORTEST_PATH) return PathKeeping::TooShort;
  return length > LONGEST_FILE ? PathKeeping::TooLong : PathKeeping::Whole;
}

/// Empty when there is too much of it.
std::wstring ReadLatin1(std::FILE* file) {
  std::wstring text;
  char buffer[4096];
  while (const std::size_t count = std::fread(buffer, 1, sizeof buffer, file)) {
    for (std::size_t i = 0; i < count; ++i) text += static_cast<wchar_t>(static_cast<unsigned char>(buffer[i]));
    if (KeepingOf(text.size()) == PathKeeping::TooLong) return std::wstring();
  }
  return text;
}

bool FitsOneByte(wchar_t character) { return character >= 0 && character <= 0xFF; }

std::string Latin1Beginning(const std::wstring& text) {
  std::string bytes(Settings::WhatIsKept(text).length, '\0');
  std::transform(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(bytes.size()), bytes.begin(),
                 [](wchar_t character) { return static_cast<char>(static_cast<unsigned char>(character)); });
  return bytes;
}

}  // namespace

bool Settings::LoadSettings() {
  if (m_singleton) {
    Debug::AddDebugMessage(DEBUG_WARNING, L"Settings::LoadSettings - singleton was not nullptr");
    delete m_singleton;
  }
  m_singleton = new Settings;
  LoadFromSettingsFile();
  return true;
}

void Settings::FreeSettings() {
  if (!m_singleton) Debug::AddDebugMessage(DEBUG_WARNING, L"Settings::FreeSettings - singleton is nullptr");
  delete m_singleton;
  m_singleton = nullptr;
}

bool Settings::CheckSingleton() {
  if (!m_singleton) Debug::AddDebugMessage(DEBUG_WARNING, L"Settings::CheckSingleton - singleton is nullptr");
  return m_singleton != nullptr;
}

Settings* Settings::GetSingleton() {
  if (!m_singleton) Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::GetSingleton - singleton is nullptr");
  return m_singleton;
}

bool Settings::GetPathSet() {
  if (!m_singleton) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::GetPathSet - singleton is nullptr");
    return false;
  }
  return m_singleton->m_pathSet;
}

const wchar_t* Settings::GetPath() {
  if (!m_singleton) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::GetPath - singleton is nullptr");
    return nullptr;
  }
  return m_singleton->m_path.c_str();
}

KeptPath Settings::WhatIsKept(const std::wstring& path) {
  const auto end = std::find_if_not(path.begin(), path.end(), FitsOneByte);
  const auto length = static_cast<std::size_t>(end - path.begin());
  return {end != path.end() ? PathKeeping::Cut : KeepingOf(length), length};
}

bool Settings::StorePath(const wchar_t* path) {
  if (!m_singleton) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::GetPathSet - singleton is nullptr");
    return false;
  }
  if (!path) return false;
  m_singleton->m_path = path;
  m_singleton->m_pathSet = true;
  return SaveToSettingsFile();
}

bool Settings::SaveToSettingsFile() {
  if (!m_singleton) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::SaveToSettingsFile - singleton is nullptr");
    return false;
  }
  std::wstring name;
  if (!FindSettingsFile(name)) return false;
  if (const File file = OpenSettingsFile(name, L"w")) {
    const std::string bytes = Latin1Beginning(m_singleton->m_path);
    std::fwrite(bytes.data(), 1, bytes.size(), file.get());
  }
  Debug::AddDebugMessage(DEBUG_INFO, name.c_str());
  return true;
}

bool Settings::LoadFromSettingsFile() {
  if (!m_singleton) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"Settings::SaveToSettingsFile - singleton is nullptr");
    return false;
  }
  std::wstring name;
  if (!FindSettingsFile(name)) return false;
  const File file = OpenSettingsFile(name, L"r");
  if (!file) return false;
  std::wstring text = ReadLatin1(file.get());
  if (KeepingOf(text.size()) != PathKeeping::Whole) return false;
  m_singleton->m_path = std::move(text);
  m_singleton->m_pathSet = true;
  return true;
}

bool Settings::FindSettingsFile(std::wstring& name) {
  wchar_t folder[MAX_PATH] = {};
  if (FAILED(SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, folder))) return false;
  name = std::wstring(folder) + L"\\zorvel.ini";
  return true;
}

}  // namespace ZORVEL
