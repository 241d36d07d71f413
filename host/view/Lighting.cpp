#include "host/view/Lighting.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

const Color ZENITH(0.43F, 0.54F, 0.73F);
const Color HORIZON(0.63F, 0.65F, 0.68F);
const Color FLOOR_GLOW(0.34F, 0.32F, 0.30F);

Color mix(const Color& a, const Color& b, float share) {
  return {a.r + (b.r - a.r) * share, a.g + (b.g - a.g) * share, a.b + (b.b - a.b) * share};
}

}  // namespace

Point3 sunDirection() { return Point3(-0.62F, -0.62F, 0.92F).Normalize(); }

Color sunLight() { return {1.30F, 1.14F, 0.92F}; }

Color skyLight(const Point3& direction) {
  if (direction.z >= 0.0F) return mix(HORIZON, ZENITH, std::sqrt(std::min(1.0F, direction.z)));
  return mix(HORIZON, FLOOR_GLOW, std::min(1.0F, -direction.z * 6.0F));
}

Color openSkyLight() {
  // The cosine-weighted mean of the square root of the height is 4/5.
  return mix(HORIZON, ZENITH, 0.8F);
}

}  // namespace host
