#pragma once

#include "samples/geometry/Field.h"

namespace samples {

/// Exact distances of simple solids around the origin.
double boxDistance(const Vec3& p, const Vec3& half, double rounding);
/// Around the Z axis, from -halfHeight to +halfHeight.
double cylinderDistance(const Vec3& p, double radius, double halfHeight, double rounding);
/// A ring around the Z axis.
double torusDistance(const Vec3& p, double radius, double thickness);
double rodDistance(const Vec3& p, const Vec3& a, const Vec3& b, double radius);

}  // namespace samples
