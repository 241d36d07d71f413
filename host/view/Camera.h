#pragma once

#include <box3.h>
#include <ray.h>

#include <QPointF>
#include <optional>

namespace host {

/// A perspective camera; lengths in scene units, Z up.
class Camera {
 public:
  /// `verticalAngle` in radians. An eye on its target looks along Y.
  Camera(const Point3& eye, const Point3& target, float verticalAngle = DEFAULT_ANGLE);

  /// Sees the whole box from in front (things face -Y), a little from the right and from above. `aspect` is width by
  /// height. The same picture in any unit; an empty box is seen as one around the origin.
  static Camera framing(const Box3& worldBounds, float aspect);

  const Point3& eye() const { return eye_; }
  const Point3& forward() const { return forward_; }
  float verticalAngle() const { return angle_; }
  /// Through a place in a picture of that size, in pixels from its upper left corner; of unit direction.
  Ray rayThrough(float x, float y, int width, int height) const;
  /// Where a place in the world is in the picture; nothing for what is not in front of the eye.
  std::optional<QPointF> project(const Point3& world, int width, int height) const;

  static constexpr float DEFAULT_ANGLE = 0.50F;

 private:
  Point3 eye_;
  Point3 forward_;
  Point3 right_;
  Point3 up_;
  float angle_;
};

}  // namespace host
