#pragma once

#include <string_view>

#include "host/meshes/Mesh.h"

namespace host {

bool looksLikeGlb(std::string_view bytes);

/// All meshes of the default scene as one, node transforms applied, in centimetres and Z up. A primitive's material
/// index becomes the material id. Normals may be missing. Throws UnreadableMesh.
Mesh readGlb(std::string_view bytes);

}  // namespace host
