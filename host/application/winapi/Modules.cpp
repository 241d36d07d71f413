#include <windows.h>

#include <algorithm>

#include "host/plugins/ModuleStrings.h"

int WINAPI LoadStringW(HINSTANCE instance, UINT id, LPWSTR buffer, int size) {
  if (buffer == nullptr || size < 1) return 0;
  const std::wstring* text = host::ModuleStrings::instance().find(instance, id);
  const std::size_t length = text != nullptr ? std::min(text->size(), static_cast<std::size_t>(size) - 1) : 0;
  if (length > 0) std::copy_n(text->data(), length, buffer);
  buffer[length] = 0;
  return static_cast<int>(length);
}

BOOL WINAPI DisableThreadLibraryCalls(HMODULE module) { return module != nullptr ? TRUE : FALSE; }
