#pragma once

#include <string_view>

#include "host/meshes/Mesh.h"

namespace host {

/// Text in which some line begins with a vertex.
bool looksLikeObj(std::string_view bytes);

/// Vertices, texture coordinates, normals and faces of an OBJ file, as they are written: centimetres, Z up. The
/// material names of "usemtl" become ids in the order in which they first appear. Normals may be missing from the
/// result only where the mesh gives none of any length. Throws UnreadableMesh.
Mesh readObj(std::string_view text);

}  // namespace host
