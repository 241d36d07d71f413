#include "samples/body/Lap.h"

#include "samples/geometry/BlobField.h"

namespace samples {

Lap::Lap(const Skeleton& skeleton) : m_skeleton(skeleton), m_frame(skeleton.lap()) {
  const Limb& left = skeleton.leg(Side::Left);
  const Limb& right = skeleton.leg(Side::Right);
  m_knees = m_frame.local((left.lower.origin + right.lower.origin) * 0.5).z;
  m_hips = skeleton.restPelvis() - 0.018 * skeleton.stature();
  const Vec3& up = skeleton.pelvis().z;
  m_crease = Vec3{dot(m_frame.x, up), dot(m_frame.y, up), 0} * (-2 / (1 - dot(m_frame.z, up)));
  const Proportions& body = skeleton.proportions();
  m_thick = 0.97 + 0.06 * body.muscle + 0.05 * body.fullness;
}

Vec3 Lap::straight(const Vec3& p) const {
  const Vec3 local = m_frame.local(p);
  const double above = m_skeleton.pelvis().local(p).z + 0.018 * m_skeleton.stature();
  const double hangs = smoothStep(-6, 6, local.z - above);
  const Vec3 rest = m_skeleton.toRest(p);
  if (hangs <= 0) return rest;
  return mix(rest, Vec3{-local.x, local.y, m_hips - local.z - dot(m_crease, local)}, hangs);
}

double Lap::hull(const Vec3& p, double ease, double flare, double folds) const {
  const Limb& left = m_skeleton.leg(Side::Left);
  const Limb& right = m_skeleton.leg(Side::Right);
  const Vec3 local = m_frame.local(p);
  const double t = std::clamp(local.z / left.upperLength, -0.1, 1.3);
  const Vec3 a = mix(left.upper.origin, left.lower.origin, t);
  const Vec3 b = mix(right.upper.origin, right.lower.origin, t);
  const Vec3 nearest = mix(a, b, alongLine(p, a, b));
  const double swing = smoothStep(0.05, 1.0, t);
  const double seated = m_skeleton.pose().seated ? 0.25 : 1.0;
  const double wave = folds * swing * std::sin(9 * std::atan2(local.x, local.y) + 0.6);
  const double radius = mix(0.0505, 0.034, std::clamp(t, 0.0, 1.0)) * m_thick * m_skeleton.stature();
  return length(p - nearest) - radius - ease - seated * (flare * swing + wave);
}

}  // namespace samples
