#pragma once

#include <box3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace host {

/// A place on a texture; v counts upward from the lower edge.
struct TexCoord {
  float u = 0.0F;
  float v = 0.0F;
};

/// A triangle mesh, complete once `completeMesh` has run; shared and never changed after that.
struct Mesh {
  using Triangle = std::array<std::uint32_t, 3>;

  /// Centimetres, Z up.
  std::vector<Point3> positions;
  /// Unit length, one for each position.
  std::vector<Point3> normals;
  /// Empty, or one for each position.
  std::vector<TexCoord> texCoords;
  /// Counter-clockwise seen from outside.
  std::vector<Triangle> triangles;
  /// Empty when every triangle has material id 0, else one for each triangle.
  std::vector<std::uint16_t> materialIds;
  Box3 bounds;

  std::uint16_t materialId(std::size_t triangle) const { return materialIds.empty() ? 0 : materialIds[triangle]; }
};

/// Gives every position without a normal (none at all, or one without length) the smooth normal of the triangles around
/// it, brings the others to unit length, replaces texture coordinates that are no numbers, and measures the bounds.
/// Triangles must name existing positions.
void completeMesh(Mesh& mesh);

}  // namespace host
