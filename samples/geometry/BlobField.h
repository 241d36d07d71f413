#pragma once

#include "samples/geometry/Field.h"

namespace samples {

/// Rounded shapes melted into one another, in the order in which they are added.
class BlobField : public Field {
 public:
  /// A cone with round ends; `blend` is how far it melts into what was added before, in centimetres.
  void addCone(const Vec3& a, double radiusA, const Vec3& b, double radiusB, double blend);
  /// The ellipsoid along the axes of the frame.
  void addEllipsoid(const Frame& frame, const Vec3& radii, double blend);
  void addSphere(const Vec3& centre, double radius, double blend) { addCone(centre, radius, centre, radius, blend); }
  /// Takes the ellipsoid away.
  void carveEllipsoid(const Frame& frame, const Vec3& radii, double blend);

  double distance(const Vec3& point) const override;
  Box bounds() const override { return bounds_; }

 private:
  struct Shape {
    bool cone = true;
    bool carved = false;
    double blend = 0;
    Vec3 a;
    Vec3 b;
    double radiusA = 0;
    double radiusB = 0;
    Frame frame;
    Vec3 radii;

    double distance(const Vec3& point) const;
  };

  std::vector<Shape> shapes_;
  Box bounds_;
};

/// About the distance to an ellipsoid around the origin.
double ellipsoidDistance(const Vec3& local, const Vec3& radii);

/// The nearest place on a line from a to b: 0 at a, 1 at b.
double alongLine(const Vec3& point, const Vec3& a, const Vec3& b);

}  // namespace samples
