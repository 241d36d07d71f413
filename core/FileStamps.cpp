#include "core/FileStamps.h"

#include <windows.h>

#include "core/DiskView.h"

namespace ZORVEL {

namespace {

std::uint64_t Join(DWORD high, DWORD low) { return (static_cast<std::uint64_t>(high) << 32) | low; }

}  // namespace

FileStamp FileStamp::Of(const std::wstring& path) {
  WIN32_FILE_ATTRIBUTE_DATA data = {};
  FileStamp stamp;
  if (DiskView* view = ViewedDisk::GetView()) {
    stamp.exists = view->Look(path) == DiskEntry::File;
    return stamp;
  }
  if (GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data) == 0) return stamp;
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return stamp;
  stamp.exists = true;
  stamp.size = Join(data.nFileSizeHigh, data.nFileSizeLow);
  stamp.time = Join(data.ftLastWriteTime.dwHighDateTime, data.ftLastWriteTime.dwLowDateTime);
  return stamp;
}

const FileStamp& FileStamps::Get(const std::wstring& path) {
  // A view knows without asking the disk, and there may be a path for each clothing in each pose.
  if (ViewedDisk::GetView()) return m_viewed = FileStamp::Of(path);
  const auto found = m_stamps.find(path);
  return found != m_stamps.end() ? found->second : m_stamps.emplace(path, FileStamp::Of(path)).first->second;
}

}  // namespace ZORVEL
