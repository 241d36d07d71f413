#include "samples/body/Skeleton.h"

namespace samples {
namespace {

Frame joint(const Frame& parent, double up, const Vec3& degrees, double back = 0) {
  return parent.child(Frame::rotated(degrees, {0, back, up}));
}

// Where the knee is, given both ends of the leg: in the plane that `forward` opens, on its side.
Vec3 bend(const Vec3& hip, const Vec3& ankle, double upper, double lower, const Vec3& forward) {
  const Vec3 span = ankle - hip;
  const double distance = std::min(length(span), (upper + lower) * 0.9995);
  const Vec3 along = normalized(span);
  const double onSpan = (upper * upper - lower * lower + distance * distance) / (2 * distance);
  const double aside = std::sqrt(std::max(upper * upper - onSpan * onSpan, 0.0));
  return hip + along * onSpan + normalized(forward - along * dot(forward, along)) * aside;
}

}  // namespace

Skeleton::Skeleton(const Proportions& proportions, const Pose& pose) : proportions_(proportions), pose_(pose) {
  poseTrunk();
  for (const Side side : {Side::Left, Side::Right}) {
    poseLeg(side);
    poseArm(side);
  }
}

void Skeleton::poseTrunk() {
  const double legs = restPelvis() - ankleHeight();
  const Vec3 offset = pose_.pelvisOffset * legs;
  const double height = ankleHeight() + legs * pose_.pelvisHeight + offset.z;
  pelvis_ = Frame::rotated(pose_.pelvis, {offset.x, offset.y, height});
  const double stoop = proportions_.stoop;
  spine_ = joint(pelvis_, restSpine() - restPelvis(), pose_.spine + Vec3{5, 0, 0} * stoop);
  chest_ = joint(spine_, restChest() - restSpine(), pose_.chest + Vec3{9, 0, 0} * stoop);
  const double neckBack = 0.012 * stature();
  neck_ = joint(chest_, restNeck() - restChest(), pose_.neck + Vec3{12, 0, 0} * stoop, neckBack);
  head_ = joint(neck_, restHead() - restNeck(), pose_.head - Vec3{19, 0, 0} * stoop, -0.007 * stature());
}

void Skeleton::poseLeg(Side side) {
  const LegPose& leg = side == Side::Left ? pose_.leftLeg : pose_.rightLeg;
  Limb& limb = legs_[static_cast<std::size_t>(side)];
  const double s = sign(side);
  const double hipDrop = 0.018 * stature();
  const double legs = restPelvis() - ankleHeight();
  limb.upperLength = 0.240 * stature();
  limb.lowerLength = restPelvis() - hipDrop - ankleHeight() - limb.upperLength;

  const Vec3 hip = pelvis_.point({s * proportions_.between(0.050, 0.053) * stature(), 0.002 * stature(), -hipDrop});
  const Frame foot = Frame::rotated({-leg.footPitch, 0, s * leg.footYaw});
  const Vec3 ball{0, -ballForward(), -ankleHeight()};
  const Vec3 heel{0, heelBack(), -ankleHeight()};
  const double lowest = std::min(foot.direction(ball).z, foot.direction(heel).z);
  const Vec3 ankle{leg.ankle.x * legs, leg.ankle.y * legs + 0.012 * stature(), leg.ankle.z * legs - lowest};
  const double yaw = radians(leg.kneeYaw);
  const Vec3 forward{s * std::sin(yaw), -std::cos(yaw), 0.12};
  const Vec3 knee = bend(hip, ankle, limb.upperLength, limb.lowerLength, forward);
  const Vec3 end = knee + normalized(ankle - knee) * limb.lowerLength;

  limb.upper = Frame::aimed(hip, knee - hip, -forward);
  limb.lower = Frame::aimed(knee, end - knee, limb.upper.y);
  limb.end = foot.at(end);
  limb.toes = Frame::rotated({-std::max(leg.footPitch, 0.0), 0, s * leg.footYaw}, limb.end.point(ball));
}

void Skeleton::poseArm(Side side) {
  const ArmPose& arm = side == Side::Left ? pose_.leftArm : pose_.rightArm;
  Limb& limb = arms_[static_cast<std::size_t>(side)];
  const double s = sign(side);
  limb.upperLength = 0.170 * stature();
  limb.lowerLength = 0.146 * stature();

  const double halfWidth = proportions_.between(0.096, 0.086) * proportions_.shoulders * stature();
  const Vec3 shoulder = chest_.point({s * halfWidth, 0.012 * stature(), 0.808 * stature() - restChest()});
  // Down along the bone is Z of a limb, so the hanging arm is the trunk turned half about Y of the body, X mirrored.
  const Frame hanging{{-1, 0, 0}, {0, 1, 0}, {0, 0, -1}, {}};
  const Frame swung =
      chest_.child(Frame::rotated({-arm.forward, 0, 0})).child(Frame::rotated({0, -s * arm.outward, 0}));
  limb.upper = swung.child(Frame::rotated({0, 0, -s * arm.twist})).child(hanging).at(shoulder);
  // Turning about X brings Z (down the arm) towards -Y (forward), which is how an elbow bends.
  limb.lower = limb.upper.child(Frame::rotated({arm.elbow, 0, 0}, {0, 0, limb.upperLength}));
  limb.end = limb.lower.child(Frame::rotated({0, 0, s * arm.pronation}, {0, 0, limb.lowerLength}))
                 .child(Frame::rotated({0, s * arm.wrist, 0}));
}

Frame Skeleton::lap() const {
  const Limb& left = leg(Side::Left);
  const Limb& right = leg(Side::Right);
  const Vec3 hips = (left.upper.origin + right.upper.origin) * 0.5;
  const Vec3 z = normalized((left.lower.origin + right.lower.origin) * 0.5 - hips);
  const Vec3 x = normalized(z * dot(pelvis_.x, z) - pelvis_.x);
  return {x, cross(z, x), z, hips};
}

Frame Skeleton::grip(Side side) const {
  const Frame& hand = arm(side).end;
  const double inward = sign(side) * 0.155 * handLength();
  return {-hand.x, hand.y, -hand.z, hand.point({inward, -0.02 * handLength(), 0.50 * handLength()})};
}

Vec3 Skeleton::toRest(const Vec3& world) const {
  const Vec3 low = pelvis_.local(world) + Vec3{0, 0, restPelvis()};
  const Vec3 middle = spine_.local(world) + Vec3{0, 0, restSpine()};
  const Vec3 high = chest_.local(world) + Vec3{0, 0, restChest()};
  const double s = stature();
  const double toMiddle = smoothStep(0.565 * s, 0.635 * s, middle.z);
  const double toHigh = smoothStep(0.635 * s, 0.71 * s, middle.z);
  return mix(mix(low, middle, toMiddle), high, toHigh);
}

}  // namespace samples
