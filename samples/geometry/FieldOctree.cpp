#include "samples/geometry/FieldOctree.h"

namespace samples {
namespace {

// From half a cube's diagonal to its side.
constexpr double HALF_DIAGONAL = 0.8660254;

bool touch(const Box& box, const Vec3& centre, double half) {
  return std::abs(0.5 * (box.low.x + box.high.x) - centre.x) < 0.5 * (box.high.x - box.low.x) + half &&
         std::abs(0.5 * (box.low.y + box.high.y) - centre.y) < 0.5 * (box.high.y - box.low.y) + half &&
         std::abs(0.5 * (box.low.z + box.high.z) - centre.z) < 0.5 * (box.high.z - box.low.z) + half;
}

}  // namespace

FieldOctree::FieldOctree(const Field& field, const Sizes& sizes)
    : field_(field), bounds_(field.bounds().grown(2 * sizes.finest)), sizes_(sizes) {
  const Vec3 size = bounds_.high - bounds_.low;
  double root = sizes.finest;
  while (root < std::max({size.x, size.y, size.z}) + 2 * sizes.coarsest) root *= 2;
  Cube cube;
  // An odd offset keeps flat cuts at round heights off the middles of the cubes.
  cube.centre = (bounds_.low + bounds_.high) * 0.5 + Vec3{0.137, 0.171, 0.113} * sizes.finest;
  cubes_.reserve(100000);
  cubes_.push_back(cube);
  divide(0, root);
  gatherSides();
}

// Children come after their parents.
void FieldOctree::gatherSides() {
  for (std::size_t i = cubes_.size(); i-- > 0;) {
    Cube& cube = cubes_[i];
    if (cube.children == 0) {
      cube.sides = cube.value < 0 ? 1 : 2;
      continue;
    }
    cube.sides = 0;
    for (std::uint32_t child = cube.children; child < cube.children + 8; ++child) cube.sides |= cubes_[child].sides;
  }
}

const std::vector<FieldOctree::Part>& FieldOctree::partsOf(unsigned doubled) {
  static const std::array<std::vector<Part>, 8> all = [] {
    std::array<std::vector<Part>, 8> result;
    for (unsigned before = 0; before < 8; ++before) {
      for (unsigned both = 0; both < 8; ++both) {
        for (unsigned upper = 0; upper < 8; ++upper) {
          if ((before & ~both) != 0 || (both & upper) != 0) continue;
          Part part{both, upper, 0};
          for (unsigned i = 0; i < 8; ++i) part.members |= 1U << part.source(i);
          result[before].push_back(part);
        }
      }
    }
    return result;
  }();
  return all[doubled];
}

void FieldOctree::divide(std::uint32_t index, double size) {
  const auto first = static_cast<std::uint32_t>(cubes_.size());
  cubes_[index].children = first;
  const double part = 0.5 * size;
  for (unsigned i = 0; i < 8; ++i) {
    Cube cube;
    const auto side = [&](unsigned bit) { return (i & bit) != 0 ? 0.5 * part : -0.5 * part; };
    cube.centre = cubes_[index].centre + Vec3{side(1), side(2), side(4)};
    if (touch(bounds_, cube.centre, 0.5 * part)) {
      const double d = field_.distance(cube.centre);
      cube.value = static_cast<float>(std::abs(d) < 1e-5 ? 1e-5 : d);
    }
    cubes_.push_back(cube);
  }
  if (part <= 1.01 * sizes_.finest) return;
  if (part <= 1.01 * sizes_.coarsest && isStraight(index, size)) return;
  for (std::uint32_t i = first; i < first + 8; ++i) {
    if (isWorthDividing(i, part)) divide(i, part);
  }
}

// Compares the samples with those of the straight field that is most like them.
bool FieldOctree::isStraight(std::uint32_t index, double size) const {
  const Cube& cube = cubes_[index];
  std::array<double, 8> v{};
  for (std::uint32_t i = 0; i < 8; ++i) v[i] = static_cast<double>(cubes_[cube.children + i].value);
  const double mean = (v[0] + v[1] + v[2] + v[3] + v[4] + v[5] + v[6] + v[7]) / 8;
  // Far from the surface nothing matters.
  if (std::abs(mean) > size * HALF_DIAGONAL) return true;
  const double xy = (v[0] - v[1] - v[2] + v[3] + v[4] - v[5] - v[6] + v[7]) / 8;
  const double xz = (v[0] - v[1] + v[2] - v[3] - v[4] + v[5] - v[6] + v[7]) / 8;
  const double yz = (v[0] + v[1] - v[2] - v[3] - v[4] - v[5] + v[6] + v[7]) / 8;
  const double bend =
      std::max({std::abs(mean - static_cast<double>(cube.value)), std::abs(xy), std::abs(xz), std::abs(yz)});
  if (bend > sizes_.flatness) return false;
  if (sizes_.weight && bend * sizes_.weight(cube.centre) > sizes_.flatness) return false;
  const Vec3 slope{v[1] + v[3] + v[5] + v[7] - v[0] - v[2] - v[4] - v[6],
                   v[2] + v[3] + v[6] + v[7] - v[0] - v[1] - v[4] - v[5],
                   v[4] + v[5] + v[6] + v[7] - v[0] - v[1] - v[2] - v[3]};
  return isThick(cube.centre - normalized(slope) * mean, normalized(slope), sizes_.depth * size);
}

// A wall or a gap thinner than the cubes could lie between the samples, or begin close by.
bool FieldOctree::isThick(const Vec3& surface, const Vec3& outward, double depth) const {
  return field_.distance(surface - outward * depth) < -0.5 * depth &&
         field_.distance(surface + outward * depth) > 0.5 * depth;
}

bool FieldOctree::isWorthDividing(std::uint32_t index, double size) const {
  const Cube& cube = cubes_[index];
  const double d = std::abs(static_cast<double>(cube.value));
  if (size > 16 * sizes_.finest) return touch(bounds_, cube.centre, 0.5 * size);
  if (size > sizes_.coarsest) return d < size * HALF_DIAGONAL * 1.35 + 0.5;
  return d < size * HALF_DIAGONAL * 1.1;
}

}  // namespace samples
