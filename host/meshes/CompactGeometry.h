#pragma once

#include <tiny_gltf.h>

#include <vector>

#include "host/meshes/Mesh.h"

namespace host {

/// A mesh's geometry in about half the room: 16-bit positions (a 65535th of the mesh's longest side), 8-bit normals,
/// 16-bit texture coordinates as far as all of a part's lie between 0 and 1, 16-bit indices as far as they suffice, and
/// for each part only the vertices that it uses. Other programs need the extension KHR_mesh_quantization, which is
/// entered into the document.
struct CompactGeometry {
  /// One for each material id, ordered by id, which its `material` holds.
  std::vector<tinygltf::Primitive> primitives;
  /// What brings the positions back to the mesh's own units: times the scale, plus the offset.
  Point3 offset;
  float scale = 1.0F;
};

/// In the mesh's own units and axes, v turned downward. The mesh may not be empty.
CompactGeometry appendCompactGeometry(tinygltf::Model& model, const Mesh& mesh);

}  // namespace host
