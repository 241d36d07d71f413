#pragma once

#include "host/files/SharedFiles.h"
#include "host/meshes/MeshFile.h"

namespace host {

/// Meshes read from files when first needed, shared by path, size and time of the file. A mesh dies with its last user.
class MeshCache {
 public:
  /// The one that the scene's objects share.
  static MeshCache& instance();

  /// `file` is resolved already.
  MeshReading get(const std::filesystem::path& file);

 private:
  SharedFiles<Mesh> files_;
};

}  // namespace host
