#include "samples/geometry/BlobField.h"

namespace samples {

double ellipsoidDistance(const Vec3& p, const Vec3& r) {
  const double k0 = length({p.x / r.x, p.y / r.y, p.z / r.z});
  const double k1 = length({p.x / (r.x * r.x), p.y / (r.y * r.y), p.z / (r.z * r.z)});
  return k1 > 1e-9 ? k0 * (k0 - 1.0) / k1 : -std::min({r.x, r.y, r.z});
}

double alongLine(const Vec3& point, const Vec3& a, const Vec3& b) {
  const Vec3 line = b - a;
  const double square = dot(line, line);
  return square > 1e-12 ? std::clamp(dot(point - a, line) / square, 0.0, 1.0) : 0.0;
}

void BlobField::addCone(const Vec3& a, double radiusA, const Vec3& b, double radiusB, double blend) {
  Shape shape;
  shape.a = a;
  shape.b = b;
  shape.radiusA = radiusA;
  shape.radiusB = radiusB;
  shape.blend = blend;
  shapes_.push_back(shape);
  bounds_.add(a, radiusA + blend * 0.25);
  bounds_.add(b, radiusB + blend * 0.25);
}

void BlobField::addEllipsoid(const Frame& frame, const Vec3& radii, double blend) {
  Shape shape;
  shape.cone = false;
  shape.frame = frame;
  shape.radii = radii;
  shape.blend = blend;
  shapes_.push_back(shape);
  bounds_.add(frame.origin, std::max({radii.x, radii.y, radii.z}) + blend * 0.25);
}

void BlobField::carveEllipsoid(const Frame& frame, const Vec3& radii, double blend) {
  Shape shape;
  shape.cone = false;
  shape.carved = true;
  shape.frame = frame;
  shape.radii = radii;
  shape.blend = blend;
  shapes_.push_back(shape);
}

double BlobField::Shape::distance(const Vec3& p) const {
  if (!cone) return ellipsoidDistance(frame.local(p), radii);
  const double t = alongLine(p, a, b);
  return length(p - mix(a, b, t)) - mix(radiusA, radiusB, t);
}

double BlobField::distance(const Vec3& p) const {
  double result = 1e6;
  for (const Shape& shape : shapes_) {
    const double d = shape.distance(p);
    result = shape.carved ? smoothMax(result, -d, shape.blend) : smoothMin(result, d, shape.blend);
  }
  return result;
}

}  // namespace samples
