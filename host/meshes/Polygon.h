#pragma once

#include <point3.h>

#include <array>
#include <cstddef>
#include <vector>

namespace host {

/// Cuts a polygon, concave ones too, into triangles that turn the way it turns; each names three of its corners. Always
/// two fewer triangles than corners, whatever the corners are; none for fewer than three.
std::vector<std::array<std::size_t, 3>> triangulated(const std::vector<Point3>& corners);

}  // namespace host
