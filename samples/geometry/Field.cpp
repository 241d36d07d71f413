#include "samples/geometry/Field.h"

namespace samples {

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
