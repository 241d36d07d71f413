#include "samples/body/ClothUnwrap.h"

namespace samples {
namespace {

constexpr int TRUNK = 0;
constexpr int LEFT_ARM = 2;
constexpr int RIGHT_ARM = 3;
constexpr int LEFT_LEG = 4;
constexpr int RIGHT_LEG = 5;

// On both sides of the plane that halves a bent joint the cloth is drawn together outside and apart inside, so that the
// lengths along both bones meet there.
Vec3 alongLimb(const Limb& limb, const Vec3& p) {
  const Vec3 fromJoint = p - limb.joint();
  const double beyond = dot(fromJoint, normalized(limb.upper.z + limb.lower.z));
  const double drawn = 0.5 * dot(fromJoint, limb.upper.z - limb.lower.z) * (1 - smoothStep(0, 12, std::abs(beyond)));
  const Vec3 upper = limb.upper.local(p) - Vec3{0, 0, drawn};
  const Vec3 lower = limb.lower.local(p) + Vec3{0, 0, limb.upperLength + drawn};
  return mix(upper, lower, smoothStep(-3, 3, beyond));
}

Wrapped wrapLimb(const Limb& limb, Side side, const Vec3& p, double girth) {
  const Vec3 q = alongLimb(limb, p);
  // The seam runs along the inner side.
  return wrapAround(q.y, -sign(side) * q.x, -q.z, girth);
}

}  // namespace

ClothUnwrap::ClothUnwrap(std::shared_ptr<const ImplicitBody> body, Kind kind)
    : body_(std::move(body)), lap_(body_->skeleton()), kind_(kind) {}

int ClothUnwrap::panel(const Vec3& place, const Vec3&) const {
  if (kind_ == Kind::Trousers) {
    const Skeleton& skeleton = body_->skeleton();
    const double left = body_->legDistance(Side::Left, place);
    const double right = body_->legDistance(Side::Right, place);
    const bool high = skeleton.toRest(place).z > skeleton.restPelvis() - 0.04 * skeleton.stature();
    const bool isLeft = high ? skeleton.pelvis().local(place).x > 0 : left < right;
    return isLeft ? LEFT_LEG : RIGHT_LEG;
  }
  const double trunk = std::min(
      {body_->trunkDistance(place), body_->legDistance(Side::Left, place), body_->legDistance(Side::Right, place)});
  for (const Side side : {Side::Left, Side::Right}) {
    if (body_->armDistance(side, place) < trunk - 0.8) return side == Side::Left ? LEFT_ARM : RIGHT_ARM;
  }
  return TRUNK;
}

Wrapped ClothUnwrap::wrap(int panel, const Vec3& p) const {
  const Skeleton& skeleton = body_->skeleton();
  switch (panel) {
    case LEFT_ARM:
      return wrapLimb(skeleton.arm(Side::Left), Side::Left, p, 40);
    case RIGHT_ARM:
      return wrapLimb(skeleton.arm(Side::Right), Side::Right, p, 40);
    case LEFT_LEG:
      return wrapLimb(skeleton.leg(Side::Left), Side::Left, p, 60);
    case RIGHT_LEG:
      return wrapLimb(skeleton.leg(Side::Right), Side::Right, p, 60);
    default:
      break;
  }
  const Vec3 rest = kind_ == Kind::Dress ? lap_.straight(p) : skeleton.toRest(p);
  return wrapAround(rest.x, -rest.y, rest.z, 100);
}

}  // namespace samples
