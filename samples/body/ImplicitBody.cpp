#include "samples/body/ImplicitBody.h"

namespace samples {
namespace {

constexpr std::array<Side, 2> SIDES = {Side::Left, Side::Right};

std::size_t index(Side side) { return static_cast<std::size_t>(side); }

// The field, or a lower bound that spares the work far from it.
double near(const Field& field, const Vec3& p) {
  const double outside = field.bounds().distance(p);
  return outside > 8 ? outside : field.distance(p);
}

}  // namespace

ImplicitBody::ImplicitBody(const Skeleton& skeleton, HairStyle hair)
    : skeleton_(skeleton), headShape_(skeleton, hair), trunk_(skeleton) {
  chestAndSeat_ = makeChestAndSeat();
  neck_ = makeNeck();
  bounds_ = headShape_.head()->bounds();
  bounds_.add(trunk_.bounds());
  for (const Side side : SIDES) {
    arms_[index(side)] = makeArm(skeleton, side);
    hands_[index(side)] = makeHand(skeleton, side);
    legs_[index(side)] = makeLeg(skeleton, side);
    feet_[index(side)] = makeFoot(skeleton, side);
    for (const FieldPtr& part : {arms_[index(side)], hands_[index(side)], legs_[index(side)], feet_[index(side)]}) {
      bounds_.add(part->bounds());
    }
  }
  bounds_ = bounds_.grown(1);
}

FieldPtr ImplicitBody::makeChestAndSeat() const {
  const Proportions& body = skeleton_.proportions();
  const double s = skeleton_.stature();
  const double f = body.femininity;
  const auto chest = [&](double x, double y, double z) {
    return skeleton_.chest().point({x * s, y * s, z * s - skeleton_.restChest()});
  };
  const auto seat = [&](double x, double y, double z) {
    return skeleton_.pelvis().point({x * s, y * s, z * s - skeleton_.restPelvis()});
  };
  auto field = std::make_shared<BlobField>();
  for (const double side : {-1.0, 1.0}) {
    if (body.childhood() < 0.5) {
      const Frame breast = skeleton_.chest().child(Frame::rotated({0, 0, side * 16}));
      field->addEllipsoid(breast.at(chest(side * mix(0.045, 0.044, f), mix(-0.047, -0.050, f), mix(0.738, 0.728, f))),
                          Vec3{mix(0.046, 0.038, f), mix(0.026, 0.041, f), mix(0.032, 0.037, f)} * s, 0.010 * s);
    }
    field->addEllipsoid(skeleton_.pelvis().at(seat(side * 0.046, mix(0.036, 0.040, f), 0.497)),
                        Vec3{0.046, mix(0.038, 0.040, f), 0.048} * s, 0.012 * s);
    const Vec3 shoulder = skeleton_.arm(side > 0 ? Side::Left : Side::Right).upper.origin;
    field->addCone(skeleton_.neck().point({side * 0.012 * s, 0.004 * s, 0.012 * s}), mix(0.024, 0.018, f) * s,
                   mix(shoulder, chest(0, 0, 0.81), 0.18), mix(0.022, 0.018, f) * s, 0.02 * s);
  }
  return field;
}

FieldPtr ImplicitBody::makeNeck() const {
  const Proportions& body = skeleton_.proportions();
  const double s = skeleton_.stature();
  auto field = std::make_shared<BlobField>();
  field->addCone(skeleton_.neck().point({0, 0, -0.02 * s}), body.between(0.0345, 0.0290) * s,
                 skeleton_.head().point({0, 0.001 * s, 0.012 * s}), body.between(0.0325, 0.0265) * s, 0);
  return field;
}

double ImplicitBody::trunkDistance(const Vec3& p) const {
  return smoothMin(trunk_.distance(p), near(*chestAndSeat_, p), 3.5);
}

double ImplicitBody::armDistance(Side side, const Vec3& p) const { return near(*arms_[index(side)], p); }
double ImplicitBody::legDistance(Side side, const Vec3& p) const { return near(*legs_[index(side)], p); }
double ImplicitBody::handDistance(Side side, const Vec3& p) const { return near(*hands_[index(side)], p); }
double ImplicitBody::footDistance(Side side, const Vec3& p) const { return near(*feet_[index(side)], p); }

double ImplicitBody::joinArm(double a, double arm, Side side, const Vec3& p, double blend) const {
  const double away = length(p - skeleton_.arm(side).upper.origin) / skeleton_.stature();
  return smoothMin(a, arm, blend * (1 - smoothStep(0.045, 0.11, away)));
}

double ImplicitBody::joinLeg(double a, double leg, Side side, const Vec3& p, double blend) const {
  const double away = length(p - skeleton_.leg(side).upper.origin) / skeleton_.stature();
  return smoothMin(a, leg, blend * (1 - smoothStep(0.06, 0.14, away)));
}

double ImplicitBody::figureDistance(const Vec3& p) const {
  double d = smoothMin(trunkDistance(p), near(*neck_, p), 3.0);
  for (const Side side : SIDES) {
    d = joinArm(d, armDistance(side, p), side, p);
    d = joinLeg(d, legDistance(side, p), side, p);
  }
  return d;
}

// Every outfit covers the trunk from the hips to below the arms; there the body gives way, so that no skin shows
// through.
double ImplicitBody::coveredDistance(const Vec3& p) const {
  const double d = trunkDistance(p);
  if (d > 4) return d;
  const double height = skeleton_.toRest(p).z / skeleton_.stature();
  return d + 0.9 * smoothStep(0.50, 0.53, height) * (1 - smoothStep(0.70, 0.74, height));
}

double ImplicitBody::distance(const Vec3& p) const {
  double trunk = smoothMin(coveredDistance(p), near(*neck_, p), 3.0);
  trunk = smoothMin(trunk, near(*headShape_.head(), p), 1.6);
  for (const Side side : SIDES) {
    const double arm = smoothMin(armDistance(side, p), handDistance(side, p), 1.6);
    trunk = joinArm(trunk, arm, side, p);
    const double leg = smoothMin(legDistance(side, p), footDistance(side, p), 2.0);
    trunk = joinLeg(trunk, leg, side, p);
  }
  return trunk;
}

BodyPart ImplicitBody::partAt(const Vec3& p) const {
  const std::array<double, 6> distances = {
      trunkDistance(p),
      std::min(near(*headShape_.head(), p), near(*neck_, p) + 1.0),
      std::min(armDistance(Side::Left, p), handDistance(Side::Left, p)),
      std::min(armDistance(Side::Right, p), handDistance(Side::Right, p)),
      std::min(legDistance(Side::Left, p), footDistance(Side::Left, p)),
      std::min(legDistance(Side::Right, p), footDistance(Side::Right, p)),
  };
  return static_cast<BodyPart>(std::min_element(distances.begin(), distances.end()) - distances.begin());
}

}  // namespace samples
