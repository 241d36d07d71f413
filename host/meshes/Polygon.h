#pragma once

#include <point3.h>

#include <array>
#include <cstddef>
#include <vector>

namespace host {

/// Cuts a polygon, concave ones too, into triangles that turn the way it turns; each names three of its corners. Always
/// two fewer triangles than corners, whatever the corners are; none for fewer than three. To find where to cut takes up
/// to the third power of the corners: so many comparisons may be made as `effort` says, which is less by them
/// afterwards. Where none are left, what remains is cut as a fan, which is right wherever it is convex.
std::vector<std::array<std::size_t, 3>> triangulated(const std::vector<Point3>& corners, std::size_t& effort);

}  // namespace host
