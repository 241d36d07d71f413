#include "samples/geometry/Frame.h"

namespace samples {

Frame Frame::child(const Frame& inner) const {
  return {direction(inner.x), direction(inner.y), direction(inner.z), point(inner.origin)};
}

Frame Frame::at(const Vec3& newOrigin) const { return {x, y, z, newOrigin}; }

Frame Frame::rotated(const Vec3& degrees, const Vec3& origin) {
  const double cx = std::cos(radians(degrees.x)), sx = std::sin(radians(degrees.x));
  const double cy = std::cos(radians(degrees.y)), sy = std::sin(radians(degrees.y));
  const double cz = std::cos(radians(degrees.z)), sz = std::sin(radians(degrees.z));
  return {{cz * cy, sz * cy, -sy},
          {cz * sy * sx - sz * cx, sz * sy * sx + cz * cx, cy * sx},
          {cz * sy * cx + sz * sx, sz * sy * cx - cz * sx, cy * cx},
          origin};
}

Frame Frame::aimed(const Vec3& origin, const Vec3& along, const Vec3& back) {
  const Vec3 z = normalized(along);
  const Vec3 x = normalized(cross(back, z));
  return {x, cross(z, x), z, origin};
}

Vec3 Frame::angles() const {
  constexpr double degrees = 180.0 / PI;
  const double b = std::asin(std::clamp(-x.z, -1.0, 1.0));
  return Vec3{std::atan2(y.z, z.z), b, std::atan2(x.y, x.x)} * degrees;
}

}  // namespace samples
