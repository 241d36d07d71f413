#include "model/MeshFiles.h"

#include "core/Disk.h"

namespace ZORVEL {

MeshState MeshFiles::Look(const std::wstring& path) {
  if (Disk::FileIsReadable(path)) return MeshState::Found;
  const bool exists = Disk::FileExists(path) || Disk::FolderExists(path);
  return exists ? MeshState::Unreadable : MeshState::Missing;
}

}  // namespace ZORVEL
