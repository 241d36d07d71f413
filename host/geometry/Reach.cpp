#include "host/geometry/Reach.h"

#include <cmath>

namespace host {

bool isWithin(float farthest, const Point3& p) {
  return std::abs(p.x) <= farthest && std::abs(p.y) <= farthest && std::abs(p.z) <= farthest;
}

bool isWithin(float farthest, const Box3& box) { return isWithin(farthest, box.pmin) && isWithin(farthest, box.pmax); }

}  // namespace host
