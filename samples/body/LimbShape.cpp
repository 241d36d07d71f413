#include "samples/body/LimbShape.h"

#include <array>

namespace samples {
namespace {

struct Finger {
  double across;  ///< of the hand's length, from the middle of the palm to the back of the body
  double start;
  double length;
  double radius;
};

void addFinger(BlobField& field, const Frame& hand, const Finger& finger, double size, double palm, double curl) {
  constexpr std::array<double, 3> parts = {0.47, 0.30, 0.23};
  constexpr std::array<double, 3> bends = {62, 84, 58};
  Frame phalanx =
      hand.child(Frame::rotated({-finger.across * 30, 0, 0}, {0, finger.across * size, finger.start * size}));
  double radius = finger.radius * size;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    phalanx = phalanx.child(Frame::rotated({0, palm * bends[i] * curl, 0}));
    const Vec3 tip = phalanx.point({0, 0, parts[i] * finger.length * size});
    const double next = radius * 0.93;
    field.addCone(phalanx.origin, radius, tip, next, i == 0 ? 0.030 * size : 0.008 * size);
    radius = next;
    phalanx = phalanx.at(tip);
  }
}

void addThumb(BlobField& field, const Frame& hand, double size, double palm, double curl) {
  const Vec3 base = hand.point({palm * 0.045 * size, -0.105 * size, 0.13 * size});
  const Vec3 joint = hand.point({palm * (0.10 + 0.05 * curl) * size, (-0.215 + 0.03 * curl) * size, 0.31 * size});
  const Vec3 middle = hand.point({palm * (0.13 + 0.13 * curl) * size, (-0.235 + 0.06 * curl) * size, 0.45 * size});
  const Vec3 tip = hand.point({palm * (0.15 + 0.17 * curl) * size, (-0.230 + 0.13 * curl) * size, 0.55 * size});
  field.addCone(base, 0.080 * size, joint, 0.058 * size, 0.05 * size);
  field.addCone(joint, 0.055 * size, middle, 0.052 * size, 0.02 * size);
  field.addCone(middle, 0.052 * size, tip, 0.043 * size, 0.008 * size);
}

}  // namespace

FieldPtr makeArm(const Skeleton& skeleton, Side side) {
  const Proportions& body = skeleton.proportions();
  const double s = skeleton.stature();
  const Limb& arm = skeleton.arm(side);
  const double thick = body.between(1.0, 0.84) * (0.93 + 0.14 * body.muscle);
  auto field = std::make_shared<BlobField>();
  const Vec3 elbow = arm.lower.origin;
  field->addCone(arm.upper.point({0, 0, 0.010 * s}), 0.0315 * s * thick, elbow, 0.0215 * s * thick, 0);
  field->addCone(arm.upper.point({0, -0.005 * s, 0.35 * arm.upperLength}), 0.026 * s * thick,
                 arm.upper.point({0, -0.003 * s, 0.65 * arm.upperLength}), 0.0245 * s * thick, 0.02 * s);
  field->addCone(elbow, 0.0212 * s * thick, arm.end.origin, 0.0148 * s * thick, 0.004 * s);
  field->addCone(arm.lower.point({0, 0.001 * s, 0.20 * arm.lowerLength}), 0.0222 * s * thick,
                 arm.lower.point({0, 0, 0.50 * arm.lowerLength}), 0.0190 * s * thick, 0.010 * s);
  return field;
}

FieldPtr makeHand(const Skeleton& skeleton, Side side) {
  const bool left = side == Side::Left;
  const Frame& hand = skeleton.arm(side).end;
  const double curl = (left ? skeleton.pose().leftArm : skeleton.pose().rightArm).curl;
  const double slender = skeleton.proportions().between(1.0, 0.90);
  const double size = skeleton.handLength() * skeleton.proportions().between(1.0, 0.95);
  const double palm = sign(side);
  constexpr std::array<Finger, 4> fingers = {{{-0.160, 0.49, 0.40, 0.048},
                                              {-0.052, 0.51, 0.45, 0.050},
                                              {0.055, 0.50, 0.41, 0.047},
                                              {0.150, 0.47, 0.33, 0.041}}};
  auto field = std::make_shared<BlobField>();
  field->addCone(hand.point({0, 0, -0.03 * size}), 0.130 * size * slender, hand.point({0, 0, 0.10 * size}),
                 0.125 * size * slender, 0);
  for (const Finger& finger : fingers) {
    const Vec3 knuckle = hand.point({0, finger.across * size * slender, finger.start * size});
    field->addCone(hand.point({palm * 0.01 * size, finger.across * 0.55 * size, 0.12 * size}), 0.080 * size, knuckle,
                   0.062 * size, 0.07 * size);
  }
  for (std::size_t i = 0; i < fingers.size(); ++i) {
    Finger finger = fingers[i];
    finger.radius *= slender;
    finger.across *= slender;
    addFinger(*field, hand, finger, size, palm, curl * (0.92 + 0.06 * static_cast<double>(i)));
  }
  addThumb(*field, hand, size * (0.9 + 0.1 * slender), palm, curl);
  return field;
}

FieldPtr makeLeg(const Skeleton& skeleton, Side side) {
  const Proportions& body = skeleton.proportions();
  const double s = skeleton.stature();
  const Limb& leg = skeleton.leg(side);
  const double thick = 0.97 + 0.06 * body.muscle + 0.05 * body.fullness;
  const Vec3 knee = leg.lower.origin;
  auto field = std::make_shared<BlobField>();
  field->addCone(leg.upper.point({0, 0, 0}), body.between(0.0490, 0.0510) * s * thick, knee, 0.0295 * s * thick, 0);
  field->addCone(leg.upper.point({0, -0.010 * s, 0.30 * leg.upperLength}), 0.041 * s * thick,
                 leg.upper.point({0, -0.004 * s, 0.70 * leg.upperLength}), 0.034 * s * thick, 0.02 * s);
  field->addSphere(leg.lower.point({0, -0.005 * s, 0}), 0.0262 * s * thick, 0.008 * s);
  field->addCone(knee, 0.0282 * s * thick, leg.end.origin, body.between(0.0195, 0.0180) * s, 0.006 * s);
  field->addCone(leg.lower.point({0, 0.010 * s, 0.16 * leg.lowerLength}), body.between(0.0300, 0.0285) * s * thick,
                 leg.lower.point({0, 0.008 * s, 0.46 * leg.lowerLength}), body.between(0.0265, 0.0245) * s * thick,
                 0.018 * s);
  return field;
}

FieldPtr makeFoot(const Skeleton& skeleton, Side side, double grown) {
  const Limb& leg = skeleton.leg(side);
  const double s = skeleton.stature() * skeleton.proportions().between(1.0, 0.95);
  const double sole = -skeleton.ankleHeight();
  const double inner = -sign(side);
  const Frame foot = leg.end;
  const Frame toes = leg.toes;
  const double g = grown;
  auto rear = std::make_shared<BlobField>();
  rear->addCone(foot.origin, 0.0200 * s + g, foot.point({0, 0.008 * s, 0.5 * sole}), 0.0205 * s + g, 0);
  rear->addCone(foot.point({0, 0.014 * s, sole + 0.017 * s}), 0.0195 * s + g,
                foot.point({0, -0.060 * s, sole + 0.012 * s}), 0.0215 * s + g, 0.012 * s);
  rear->addCone(foot.point({0, -0.006 * s, -0.002 * s}), 0.0185 * s + g,
                foot.point({inner * 0.004 * s, -0.070 * s, sole + 0.014 * s}), 0.0190 * s + g, 0.02 * s);
  rear->addSphere(foot.point({inner * 0.013 * s, -0.068 * s, sole + 0.010 * s}), 0.0165 * s + g, 0.012 * s);
  rear->addSphere(foot.point({-inner * 0.013 * s, -0.060 * s, sole + 0.009 * s}), 0.0165 * s + g, 0.012 * s);
  auto front = std::make_shared<BlobField>();
  for (int toe = 0; toe < 5; ++toe) {
    const double across = inner * (0.0175 - 0.0088 * toe) * s;
    const double reach = (0.041 - 0.0022 * toe - 0.0012 * toe * toe) * s;
    const double radius = (toe == 0 ? 0.0105 : 0.0080 - 0.0004 * toe) * s + g;
    front->addCone(toes.point({across * 0.9, 0.006 * s, 0.010 * s}), 0.0125 * s + g,
                   toes.point({across, -reach + radius - g, 0.008 * s}), radius, (g > 0 ? 0.012 : 0.005) * s);
  }
  const auto distance = [rear, front, foot, toes, sole, s](const Vec3& p) {
    const double back = smoothMax(rear->distance(p), sole - foot.local(p).z, 0.004 * s);
    const double fore = smoothMax(front->distance(p), -toes.local(p).z, 0.004 * s);
    return smoothMax(smoothMin(back, fore, 0.010 * s), -toes.local(p).z, 0.004 * s);
  };
  Box box = rear->bounds();
  box.add(front->bounds());
  return makeField(distance, box.grown(0.5));
}

}  // namespace samples
