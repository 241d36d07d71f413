#pragma once

#include "samples/geometry/Vector.h"

namespace samples {

/// A right-handed, unscaled coordinate system: where something is and how it is turned.
struct Frame {
  Vec3 x{1, 0, 0};
  Vec3 y{0, 1, 0};
  Vec3 z{0, 0, 1};
  Vec3 origin;

  Vec3 direction(const Vec3& local) const { return x * local.x + y * local.y + z * local.z; }
  Vec3 point(const Vec3& local) const { return origin + direction(local); }
  Vec3 localDirection(const Vec3& world) const { return {dot(world, x), dot(world, y), dot(world, z)}; }
  Vec3 local(const Vec3& world) const { return localDirection(world - origin); }

  /// The frame whose axes and origin are given in this one.
  Frame child(const Frame& inner) const;
  Frame at(const Vec3& newOrigin) const;

  /// Turned about X, then Y, then Z of the surrounding system, in degrees.
  static Frame rotated(const Vec3& degrees, const Vec3& origin = {});
  /// Z along `along`; Y as near to `back` as that allows. `back` may not be parallel to `along`.
  static Frame aimed(const Vec3& origin, const Vec3& along, const Vec3& back);

  /// The degrees for which `rotated` gives these axes.
  Vec3 angles() const;
};

}  // namespace samples
