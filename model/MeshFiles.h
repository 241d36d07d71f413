#pragma once

#include <string>

namespace ZORVEL {

enum class MeshState {
  Found,
  Missing,
  Unreadable,  ///< a folder, an empty file, or one that cannot be opened
  Shared,      ///< with a node that was in the scene already: the disk was not asked
  Refused      ///< the proxy object did not take the file
};

/// What the disk says of mesh files.
class MeshFiles {
 public:
  MeshFiles() = delete;

  /// Found, Missing or Unreadable.
  static MeshState Look(const std::wstring& path);
};

}  // namespace ZORVEL
