#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "samples/geometry/Vector.h"

namespace samples {

/// A closed triangle surface, counter-clockwise seen from outside.
struct Surface {
  using Triangle = std::array<std::uint32_t, 3>;

  std::vector<Vec3> positions;
  std::vector<Triangle> triangles;

  Vec3 corner(std::size_t triangle, std::size_t index) const { return positions[triangles[triangle][index]]; }
  /// Twice the area long.
  Vec3 areaNormal(const Triangle& triangle) const {
    const Vec3& a = positions[triangle[0]];
    return cross(positions[triangle[1]] - a, positions[triangle[2]] - a);
  }
};

}  // namespace samples
