#pragma once

#include "samples/body/Skeleton.h"

namespace samples {

/// The hips and thighs of one pose, for cloth that hangs around both legs.
class Lap {
 public:
  explicit Lap(const Skeleton& skeleton);

  /// Where a place of the cloth would be if the body stood upright: X to the left, Z the height above the ground. The
  /// crease between trunk and thighs halves their angle; the lengths on both its sides meet there.
  Vec3 straight(const Vec3& p) const;
  /// How far along the thighs, from 0 at the hips to 1 at the knees.
  double along(const Vec3& p) const { return frame_.local(p).z / knees_; }
  /// Distance to the cloth stretched around both thighs: `ease` over the skin, `flare` more at the knees, folds of the
  /// depth `folds` there.
  double hull(const Vec3& p, double ease, double flare, double folds) const;
  /// Distance above the place that is so far along the thighs: positive beyond it.
  double beyond(const Vec3& p, double length) const { return frame_.local(p).z - length * knees_; }
  /// How much faster `straight` moves than the place itself, at most.
  double stretch() const { return std::hypot(1.0, length(crease_)); }

 private:
  const Skeleton skeleton_;
  Frame frame_;
  double knees_;
  double hips_;
  Vec3 crease_;  ///< how much shorter the way down is for each centimetre aside or to the back
  double thick_;
};

}  // namespace samples
