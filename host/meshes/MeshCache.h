#pragma once

#include "host/files/FileCache.h"
#include "host/meshes/MeshFile.h"

namespace host {

/// Meshes by path, size and time of their files. A mesh dies with its last user.
using MeshCache = FileCache<Mesh, MeshResult>;

/// The one that the scene's objects share.
MeshCache& sharedMeshes();

}  // namespace host
