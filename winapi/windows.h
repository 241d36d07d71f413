#pragma once

// The Windows types and calls that the plug-in makes, for Linux. Paths are Windows-shaped: a backslash separates, a
// doubled separator counts once, and names are found without regard to case.

#include <cstddef>
#include <cstdint>
#include <cstdio>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using UWORD = std::uint16_t;
using DWORD = std::uint32_t;
using ULONG = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using HRESULT = std::int32_t;
using DWORD_PTR = std::uintptr_t;
using ULONG_PTR = std::uintptr_t;
using INT_PTR = std::intptr_t;
using HANDLE = void*;
using LPVOID = void*;
using WCHAR = wchar_t;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPARAM = std::intptr_t;

using HINSTANCE = struct HINSTANCE__*;
using HMODULE = HINSTANCE;
using HWND = struct HWND__*;
using HACCEL = struct HACCEL__*;

#ifndef TRUE
#define TRUE 1
#define FALSE 0
#endif
#define WINAPI
#define MAX_PATH 260
#define S_OK 0
#define E_FAIL (-2147467259)
#define SUCCEEDED(result) ((result) >= 0)
#define FAILED(result) ((result) < 0)

#define INVALID_FILE_ATTRIBUTES 0xFFFFFFFFU
#define FILE_ATTRIBUTE_DIRECTORY 0x10U
#define FILE_ATTRIBUTE_NORMAL 0x80U

/// 100 ns steps since 1601, in UTC.
struct FILETIME {
  DWORD dwLowDateTime;
  DWORD dwHighDateTime;
};

struct WIN32_FILE_ATTRIBUTE_DATA {
  DWORD dwFileAttributes;
  FILETIME ftCreationTime;
  FILETIME ftLastAccessTime;
  FILETIME ftLastWriteTime;
  DWORD nFileSizeHigh;
  DWORD nFileSizeLow;
};

enum GET_FILEEX_INFO_LEVELS { GetFileExInfoStandard };

#define DLL_PROCESS_ATTACH 1
#define DLL_PROCESS_DETACH 0

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<INT_PTR>(-1)))
#define MAKEINTRESOURCEW(id) (reinterpret_cast<LPWSTR>(static_cast<ULONG_PTR>(static_cast<WORD>(id))))

#define ACTCTX_FLAG_RESOURCE_NAME_VALID 0x8U
#define ACTCTX_FLAG_HMODULE_VALID 0x80U

#define _MAX_DRIVE 3
#define _MAX_DIR 256
#define _MAX_FNAME 256
#define _MAX_EXT 256

#define CSTR_LESS_THAN 1
#define CSTR_EQUAL 2
#define CSTR_GREATER_THAN 3

/// Compares texts of so many characters (zero-terminated for -1) by their code points, as capital letters where case is
/// to be ignored. 0 for a null text.
int WINAPI CompareStringOrdinal(LPCWSTR left, int leftLength, LPCWSTR right, int rightLength, BOOL ignoreCase);

/// INVALID_FILE_ATTRIBUTES when the path names nothing that can be reached.
DWORD WINAPI GetFileAttributesW(LPCWSTR path);

/// Fills a WIN32_FILE_ATTRIBUTE_DATA. FALSE, and nothing filled, when the path names nothing that can be reached, and
/// for any other level. Linux keeps no time of creation: the time of the last write stands there too. A folder has size
/// 0.
BOOL WINAPI GetFileAttributesExW(LPCWSTR path, GET_FILEEX_INFO_LEVELS level, LPVOID information);

/// Null when the file cannot be opened. In a writing mode the parent folder is found without regard to case.
std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

/// Splits a path without looking at the disk; a part that is not wanted may be null, one that is absent becomes empty.
/// The folder keeps its trailing separator, the extension its dot. A part longer than its buffer is cut.
void _wsplitpath(const wchar_t* path, wchar_t* drive, wchar_t* folder, wchar_t* name, wchar_t* extension);

/// A text of the module's string table, cut to `size` characters with the ending zero. How many characters were stored;
/// 0, and an empty text, for an id that there is not, a null or unknown module, and a buffer without room. A module
/// brings its resource script along: it exports `const char* ModuleResourceScript()`, in C linkage.
int WINAPI LoadStringW(HINSTANCE instance, UINT id, LPWSTR buffer, int size);

/// Modules are not told of threads here anyway. FALSE for null.
BOOL WINAPI DisableThreadLibraryCalls(HMODULE module);

struct ACTCTXW {
  ULONG cbSize;
  DWORD dwFlags;
  LPCWSTR lpSource;
  WORD wProcessorArchitecture;
  WORD wLangId;
  LPCWSTR lpAssemblyDirectory;
  LPCWSTR lpResourceName;
  LPCWSTR lpApplicationName;
  HMODULE hModule;
};
using PCACTCTXW = const ACTCTXW*;

// Activation contexts choose nothing on Linux, but their use is checked as on Windows: what is activated is deactivated
// in reverse order, and a context is released once.

/// INVALID_HANDLE_VALUE for a request of the wrong size or without the module that its flags promise.
HANDLE WINAPI CreateActCtxW(PCACTCTXW request);
BOOL WINAPI ActivateActCtx(HANDLE context, ULONG_PTR* cookie);
/// FALSE, and nothing done, for a cookie that is not the last one given out.
BOOL WINAPI DeactivateActCtx(DWORD flags, ULONG_PTR cookie);
void WINAPI ReleaseActCtx(HANDLE context);
