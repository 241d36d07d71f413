#pragma once

#include "windows.h"

#define CSIDL_LOCAL_APPDATA 0x1c

/// Knows CSIDL_LOCAL_APPDATA alone: the environment's LOCALAPPDATA, else the XDG data folder, created when missing.
/// `path` holds MAX_PATH characters; E_FAIL when the folder is unknown, cannot be made, or does not fit.
HRESULT WINAPI SHGetFolderPathW(HWND owner, int folder, HANDLE token, DWORD flags, LPWSTR path);
