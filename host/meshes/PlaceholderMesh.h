#pragma once

#include <memory>

#include "host/meshes/Mesh.h"

namespace host {

/// A box with room for a person, standing on Z = 0: what is shown for a mesh file that cannot be read.
std::shared_ptr<const Mesh> placeholderMesh();

}  // namespace host
