#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "samples/geometry/Field.h"

namespace samples {

/// A field sampled in the middles of cubes: small ones near the surface where it bends, larger ones where it is nearly
/// flat, huge ones far from it.
class FieldOctree {
 public:
  struct Sizes {
    double finest = 0.5;    ///< centimetres
    double coarsest = 2.0;  ///< of cubes that the surface passes through
    double flatness = 0.1;  ///< how far the field may be from straight within a cube that is not divided; centimetres
    /// How deep under a straight part there may be no other surface, in sizes of the cube that holds the part.
    double depth = 1;
    std::function<double(const Vec3&)> weight;  ///< divides the flatness; null is 1 everywhere
  };

  /// The four, six or eight cubes that meet in one place, as corners of a cell: bit 0 of the index is towards +X, bit 1
  /// +Y, bit 2 +Z. A large cube may be several corners.
  using Cell = std::array<std::uint32_t, 8>;

  FieldOctree(const Field& field, const Sizes& sizes);

  float value(std::uint32_t cube) const { return cubes_[cube].value; }
  Vec3 centre(std::uint32_t cube) const { return cubes_[cube].centre; }

  /// Calls `visit` with every cell whose corners lie on both sides of the surface, always in the same order.
  template <typename Visit>
  void forEachCell(Visit visit) const {
    if (cubes_.front().sides == 3) meet({}, 0, visit);
  }

 private:
  struct Cube {
    Vec3 centre;
    float value = 1e3F;
    std::uint8_t sides = 2;      ///< where the samples in it lie: 1 inside, 2 outside, 3 on both sides
    std::uint32_t children = 0;  ///< the first of eight; 0 for none
  };

  // Some of 2 x 2 x 2 cubes: along an axis both, when its bit is set in `doubled`, else the upper ones when it is set
  // in `upper`, else the lower ones.
  struct Part {
    unsigned doubled = 0;
    unsigned upper = 0;
    unsigned members = 0;

    unsigned source(unsigned corner) const { return (corner & doubled) | upper; }
  };
  /// All that stay around one place when the cubes were `doubled` before they were divided.
  static const std::vector<Part>& partsOf(unsigned doubled);

  void divide(std::uint32_t cube, double size);
  void gatherSides();
  bool isStraight(std::uint32_t cube, double size) const;
  bool isThick(const Vec3& surface, const Vec3& outward, double depth) const;
  bool isWorthDividing(std::uint32_t cube, double size) const;

  template <typename Visit>
  void meet(const Cell& cubes, unsigned doubled, Visit& visit) const;

  const Field& field_;
  Box bounds_;
  Sizes sizes_;
  std::vector<Cube> cubes_;
};

// `cubes` is a single cube, a row, a square or a block of cubes that touch: two along each axis whose bit is set in
// `doubled`, else one, which is repeated. Their children form 2 x 2 x 2 cubes; of these meet singles, rows, squares and
// the block, as far as they lie around the same place.
template <typename Visit>
void FieldOctree::meet(const Cell& cubes, unsigned doubled, Visit& visit) const {
  Cell parts;
  unsigned inside = 0, outside = 0, divided = 0;
  for (unsigned i = 0; i < 8; ++i) {
    // Of two neighbours, the children at their common side; of a single cube both halves.
    const std::uint32_t children = cubes_[cubes[i]].children;
    parts[i] = children == 0 ? cubes[i] : children + (i ^ doubled);
    const Cube& part = cubes_[parts[i]];
    inside |= (part.sides & 1U) << i;
    outside |= (part.sides >> 1U & 1U) << i;
    divided |= (part.children != 0 ? 1U : 0U) << i;
  }
  for (const Part& part : partsOf(doubled)) {
    if ((inside & part.members) == 0 || (outside & part.members) == 0) continue;
    const bool isDivided = (divided & part.members) != 0;
    if (!isDivided && part.members != 255) continue;
    Cell sub;
    for (unsigned i = 0; i < 8; ++i) sub[i] = parts[part.source(i)];
    if (isDivided)
      meet(sub, part.doubled, visit);
    else
      visit(sub, inside);
  }
}

}  // namespace samples
