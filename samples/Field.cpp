#include "samples/Field.h"

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

Field::Slope Field::slope(const Vec3& p, double step) const {
  // Four samples at the corners of a tetrahedron give the gradient with the fewest calls.
  constexpr Vec3 corners[] = {{1, -1, -1}, {-1, -1, 1}, {-1, 1, -1}, {1, 1, 1}};
  Vec3 gradient;
  double sum = 0;
  for (const Vec3& corner : corners) {
    const double d = distance(p + corner * step);
    gradient = gradient + corner * d;
    sum += d;
  }
  const double steepness = length(gradient) / (4 * step);
  return {normalized(gradient), 0.25 * sum / std::max(steepness, 0.3)};
}

FieldPtr makeField(FunctionField::Function function, const Box& box) {
  return std::make_shared<FunctionField>(std::move(function), box);
}

}  // namespace samples
