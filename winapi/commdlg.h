#pragma once

#include "windows.h"

#define OFN_PATHMUSTEXIST 0x800U
#define OFN_FILEMUSTEXIST 0x1000U
#define OFN_ENABLESIZING 0x800000U

struct OPENFILENAMEW {
  DWORD lStructSize;
  HWND hwndOwner;
  HINSTANCE hInstance;
  /// Pairs of a text and its patterns, each ended by a zero, the last pair by another one.
  LPCWSTR lpstrFilter;
  LPWSTR lpstrCustomFilter;
  DWORD nMaxCustFilter;
  DWORD nFilterIndex;
  LPWSTR lpstrFile;
  /// In characters, the ending zero included.
  DWORD nMaxFile;
  LPWSTR lpstrFileTitle;
  DWORD nMaxFileTitle;
  LPCWSTR lpstrInitialDir;
  LPCWSTR lpstrTitle;
  DWORD Flags;
  WORD nFileOffset;
  WORD nFileExtension;
  LPCWSTR lpstrDefExt;
  LPARAM lCustData;
  LPVOID lpfnHook;
  LPCWSTR lpTemplateName;
  LPVOID pvReserved;
  DWORD dwReserved;
  DWORD FlagsEx;
};
static_assert(sizeof(OPENFILENAMEW) == 152, "the size of a 64-bit Windows");

/// Asks the person at the window for a file. TRUE when one was chosen; its Windows-shaped path is in lpstrFile then.
/// FALSE, and lpstrFile as it was, when the person cancelled, the path does not fit, the request has another size, or
/// something that the flags ask to exist does not.
BOOL WINAPI GetOpenFileNameW(OPENFILENAMEW* request);
