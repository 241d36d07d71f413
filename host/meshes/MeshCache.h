#pragma once

#include "host/files/FileCache.h"
#include "host/files/Room.h"
#include "host/meshes/MeshFile.h"

namespace host {

/// Meshes by path, size and time of their files. A mesh dies with its last user.
using MeshCache = FileCache<Mesh, MeshResult>;

/// The one that the scene's objects share. One that finds no room is refused, and tried again when it is asked for
/// again.
MeshCache& sharedMeshes();

/// For the shared meshes, in bytes.
Room& roomForMeshes();

}  // namespace host
