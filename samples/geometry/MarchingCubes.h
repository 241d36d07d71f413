#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace samples {

/// How a surface passes through a cell whose corners lie inside or outside: as closed loops from edge to edge. Corners
/// are numbered by bits (1 towards +X, 2 +Y, 4 +Z). Where the corners of a side alternate, what is inside stays apart,
/// seen from either of the cells that share the side, so neighbours always fit.
class MarchingCubes {
 public:
  /// Counter-clockwise seen from outside the solid; each item is an edge's index.
  using Loop = std::vector<std::uint8_t>;

  static const MarchingCubes& instance();

  const std::vector<Loop>& loops(unsigned inside) const { return loops_[inside]; }
  /// The two corners that an edge joins.
  static std::array<std::uint8_t, 2> corners(std::uint8_t edge);
  /// The corners of a side, around.
  static const std::array<std::array<std::uint8_t, 4>, 6>& sides();

 private:
  MarchingCubes();

  std::array<std::vector<Loop>, 256> loops_;
};

}  // namespace samples
