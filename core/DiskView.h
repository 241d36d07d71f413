#pragma once

#include <string>

namespace ZORVEL {

enum class DiskEntry { Absent, File, Folder };

/// Answers in the place of the disk, for those who ask in bulk and know better ways than one call for each path.
class DiskView {
 public:
  virtual ~DiskView() = default;
  /// A path that cannot be reached, for whatever reason, is absent; everything that is no folder is a file.
  virtual DiskEntry Look(const std::wstring& path) = 0;
  /// Whether it is a file that can be opened and has something in it.
  virtual bool IsReadable(const std::wstring& path) = 0;
};

/// As long as it lives, Disk and FileStamp ask its view; a stamp then has neither size nor time. The youngest one
/// counts, and none is there by default.
class ViewedDisk {
 public:
  explicit ViewedDisk(DiskView& view);
  ~ViewedDisk();
  ViewedDisk(const ViewedDisk&) = delete;
  ViewedDisk& operator=(const ViewedDisk&) = delete;

  /// Null when the disk itself is asked.
  static DiskView* GetView();

 private:
  DiskView* m_previous;
};

}  // namespace ZORVEL
