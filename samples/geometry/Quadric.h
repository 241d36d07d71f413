#pragma once

#include <optional>

#include "samples/geometry/Vector.h"

namespace samples {

/// The sum of squared distances to planes, as a function of the place.
struct Quadric {
  double xx = 0, xy = 0, xz = 0, yy = 0, yz = 0, zz = 0;
  Vec3 linear;
  double constant = 0;

  void addPlane(const Vec3& n, double offset, double weight) {
    xx += weight * n.x * n.x;
    xy += weight * n.x * n.y;
    xz += weight * n.x * n.z;
    yy += weight * n.y * n.y;
    yz += weight * n.y * n.z;
    zz += weight * n.z * n.z;
    linear = linear + n * (weight * offset);
    constant += weight * offset * offset;
  }
  void add(const Quadric& q) {
    xx += q.xx;
    xy += q.xy;
    xz += q.xz;
    yy += q.yy;
    yz += q.yz;
    zz += q.zz;
    linear = linear + q.linear;
    constant += q.constant;
  }
  Vec3 apply(const Vec3& p) const {
    return {xx * p.x + xy * p.y + xz * p.z, xy * p.x + yy * p.y + yz * p.z, xz * p.x + yz * p.y + zz * p.z};
  }
  double at(const Vec3& p) const { return std::max(dot(p, apply(p)) + 2 * dot(linear, p) + constant, 0.0); }

  /// Where the sum is least; nothing where that is not one place.
  std::optional<Vec3> minimum() const {
    const double a = yy * zz - yz * yz;
    const double b = xz * yz - xy * zz;
    const double c = xy * yz - xz * yy;
    const double determinant = xx * a + xy * b + xz * c;
    const double size = xx + yy + zz;
    if (std::abs(determinant) < 1e-4 * size * size * size) return std::nullopt;
    const double d = xx * zz - xz * xz;
    const double e = xy * xz - xx * yz;
    const double f = xx * yy - xy * xy;
    const Vec3 r = -linear;
    return Vec3{a * r.x + b * r.y + c * r.z, b * r.x + d * r.y + e * r.z, c * r.x + e * r.y + f * r.z} *
           (1.0 / determinant);
  }
};

}  // namespace samples
