#include "core/Disk.h"

#include <windows.h>

#include <cstdio>

#include "core/DiskView.h"

namespace ZORVEL {

bool Disk::FolderExists(const std::wstring& path) {
  if (DiskView* view = ViewedDisk::GetView()) return view->Look(path) == DiskEntry::Folder;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool Disk::FileExists(const std::wstring& path) {
  if (DiskView* view = ViewedDisk::GetView()) return view->Look(path) == DiskEntry::File;
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool Disk::FileIsReadable(const std::wstring& path) {
  if (DiskView* view = ViewedDisk::GetView()) return view->IsReadable(path);
  std::FILE* file = _wfopen(path.c_str(), L"rb");
  if (file == nullptr) return false;
  const bool hasContent = std::fgetc(file) != EOF;
  std::fclose(file);
  return hasContent;
}

}  // namespace ZORVEL
