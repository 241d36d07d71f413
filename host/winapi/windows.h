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

#define _MAX_DRIVE 3
#define _MAX_DIR 256
#define _MAX_FNAME 256
#define _MAX_EXT 256

/// INVALID_FILE_ATTRIBUTES when the path names nothing that can be reached.
DWORD WINAPI GetFileAttributesW(LPCWSTR path);

/// Null when the file cannot be opened. In a writing mode the parent folder is found without regard to case.
std::FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

/// Splits a path without looking at the disk; a part that is not wanted may be null, one that is absent becomes empty.
/// The folder keeps its trailing separator, the extension its dot. A part longer than its buffer is cut.
void _wsplitpath(const wchar_t* path, wchar_t* drive, wchar_t* folder, wchar_t* name, wchar_t* extension);
