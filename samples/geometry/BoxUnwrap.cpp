#include "samples/geometry/BoxUnwrap.h"

namespace samples {

int BoxUnwrap::panel(const Vec3&, const Vec3& n) const {
  const double x = std::abs(n.x), y = std::abs(n.y), z = std::abs(n.z);
  if (y >= x && y >= z) return n.y < 0 ? 0 : 1;
  if (x >= z) return n.x > 0 ? 2 : 3;
  return n.z > 0 ? 4 : 5;
}

Wrapped BoxUnwrap::wrap(int panel, const Vec3& p) const {
  switch (panel) {
    case 0:
      return {p.x, p.z, 0};
    case 1:
      return {-p.x, p.z, 0};
    case 2:
      return {p.y, p.z, 0};
    case 3:
      return {-p.y, p.z, 0};
    case 4:
      return {p.x, p.y, 0};
    default:
      return {p.x, -p.y, 0};
  }
}

}  // namespace samples
