#include "host/rays/Visibility.h"

#include <cmath>

#include "host/geometry/Bounds.h"
#include "host/geometry/Reach.h"

namespace host {

namespace {

/// What a length in the world becomes in an item at most, so that the farthest ray is still within the ray caster's
/// range, 1.8e18, where it looks at the item.
constexpr double MOST_ENLARGED = 1e7;
/// The volume of three axes as a share of that of a box with such edges. Below this single precision cannot tell the
/// way back from the item to the world.
constexpr double LEAST_SPREAD = 1e-5;

double length(const Point3& p) { return std::hypot(double(p.x), double(p.y), double(p.z)); }

/// The volume that the axes span; negative for a mirroring transform.
float volume(const Matrix3& m) { return (m.GetRow(0) ^ m.GetRow(1)) % m.GetRow(2); }

bool isWithin(float farthest, const Matrix3& m) {
  for (int row = 0; row < 4; ++row) {
    if (!host::isWithin(farthest, m.GetRow(row))) return false;
  }
  return true;
}

/// Whether rays find their way from the world into the item and back.
bool isInvertible(const Matrix3& m) {
  const double spread = std::abs(double(volume(m))) / (length(m.GetRow(0)) * length(m.GetRow(1)) * length(m.GetRow(2)));
  if (!(spread >= LEAST_SPREAD)) return false;
  const Matrix3 back = Inverse(m);
  for (int axis = 0; axis < 3; ++axis) {
    double enlarged = 0.0;
    for (int row = 0; row < 3; ++row) enlarged += std::abs(double(back.GetRow(row)[axis]));
    if (!(enlarged <= MOST_ENLARGED)) return false;
  }
  return true;
}

}  // namespace

Visibility visibilityOf(const ViewItem& item) {
  if (!item.mesh || item.mesh->triangles.empty()) return Visibility::Nothing;
  if (!isWithin(FARTHEST_PLACE, item.toWorld)) return Visibility::OutOfReach;
  if (volume(item.toWorld) == 0.0F) return Visibility::Nothing;
  const bool shown = host::isWithin(FARTHEST_CORNER, item.mesh->bounds) &&
                     host::isWithin(FARTHEST_PLACE, transformed(item.mesh->bounds, item.toWorld)) &&
                     isInvertible(item.toWorld);
  return shown ? Visibility::Shown : Visibility::OutOfReach;
}

}  // namespace host
