#include "samples/body/Lap.h"

#include "samples/geometry/BlobField.h"

namespace samples {

Lap::Lap(const Skeleton& skeleton) : skeleton_(skeleton), frame_(skeleton.lap()) {
  const Limb& left = skeleton.leg(Side::Left);
  const Limb& right = skeleton.leg(Side::Right);
  knees_ = frame_.local((left.lower.origin + right.lower.origin) * 0.5).z;
  hips_ = skeleton.restPelvis() - 0.018 * skeleton.stature();
  const Vec3& up = skeleton.pelvis().z;
  crease_ = Vec3{dot(frame_.x, up), dot(frame_.y, up), 0} * (-2 / (1 - dot(frame_.z, up)));
  const Proportions& body = skeleton.proportions();
  thick_ = 0.97 + 0.06 * body.muscle + 0.05 * body.fullness;
}

Vec3 Lap::straight(const Vec3& p) const {
  const Vec3 local = frame_.local(p);
  const double above = skeleton_.pelvis().local(p).z + 0.018 * skeleton_.stature();
  const double hangs = smoothStep(-6, 6, local.z - above);
  const Vec3 rest = skeleton_.toRest(p);
  if (hangs <= 0) return rest;
  return mix(rest, Vec3{-local.x, local.y, hips_ - local.z - dot(crease_, local)}, hangs);
}

double Lap::hull(const Vec3& p, double ease, double flare, double folds) const {
  const Limb& left = skeleton_.leg(Side::Left);
  const Limb& right = skeleton_.leg(Side::Right);
  const Vec3 local = frame_.local(p);
  const double t = std::clamp(local.z / left.upperLength, -0.1, 1.3);
  const Vec3 a = mix(left.upper.origin, left.lower.origin, t);
  const Vec3 b = mix(right.upper.origin, right.lower.origin, t);
  const Vec3 nearest = mix(a, b, alongLine(p, a, b));
  const double swing = smoothStep(0.05, 1.0, t);
  const double seated = skeleton_.pose().seated ? 0.25 : 1.0;
  const double wave = folds * swing * std::sin(9 * std::atan2(local.x, local.y) + 0.6);
  const double radius = mix(0.0505, 0.034, std::clamp(t, 0.0, 1.0)) * thick_ * skeleton_.stature();
  return length(p - nearest) - radius - ease - seated * (flare * swing + wave);
}

}  // namespace samples
