#include "samples/geometry/Primitives.h"

#include "samples/geometry/BlobField.h"

namespace samples {

double boxDistance(const Vec3& p, const Vec3& half, double rounding) {
  const Vec3 q{std::abs(p.x) - half.x + rounding, std::abs(p.y) - half.y + rounding, std::abs(p.z) - half.z + rounding};
  const Vec3 out{std::max(q.x, 0.0), std::max(q.y, 0.0), std::max(q.z, 0.0)};
  return length(out) + std::min(std::max({q.x, q.y, q.z}), 0.0) - rounding;
}

double cylinderDistance(const Vec3& p, double radius, double halfHeight, double rounding) {
  const double side = std::hypot(p.x, p.y) - radius + rounding;
  const double end = std::abs(p.z) - halfHeight + rounding;
  return std::hypot(std::max(side, 0.0), std::max(end, 0.0)) + std::min(std::max(side, end), 0.0) - rounding;
}

double torusDistance(const Vec3& p, double radius, double thickness) {
  return std::hypot(std::hypot(p.x, p.y) - radius, p.z) - thickness;
}

double rodDistance(const Vec3& p, const Vec3& a, const Vec3& b, double radius) {
  return length(p - mix(a, b, alongLine(p, a, b))) - radius;
}

}  // namespace samples
