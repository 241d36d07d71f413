#include "samples/geometry/Box.h"

namespace samples {

void Box::add(const Vec3& point, double radius) {
  low = {std::min(low.x, point.x - radius), std::min(low.y, point.y - radius), std::min(low.z, point.z - radius)};
  high = {std::max(high.x, point.x + radius), std::max(high.y, point.y + radius), std::max(high.z, point.z + radius)};
}

void Box::add(const Box& box) {
  add(box.low);
  add(box.high);
}

Box Box::grown(double margin) const {
  Box box = *this;
  box.add(low, margin);
  box.add(high, margin);
  return box;
}

double Box::distance(const Vec3& p) const {
  const Vec3 d{std::max({low.x - p.x, 0.0, p.x - high.x}), std::max({low.y - p.y, 0.0, p.y - high.y}),
               std::max({low.z - p.z, 0.0, p.z - high.z})};
  return length(d);
}

}  // namespace samples
