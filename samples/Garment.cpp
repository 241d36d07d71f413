#include "samples/Garment.h"

namespace samples {
namespace {

constexpr std::array<Side, 2> kSides = {Side::Left, Side::Right};
constexpr double kWall = 1.1;

// Cuts the cloth where `cut` is positive, and hollows it so far from there that nobody sees the bottom.
double openAt(double cloth, double cut, double depth) {
  const double hollow = std::max(cloth + kWall, -(cut + depth));
  return smoothMax(smoothMax(cloth, cut, 0.5), -hollow, 0.3);
}

}  // namespace

Garment::Garment(const ImplicitBody& body) : m_body(std::make_shared<ImplicitBody>(body)) {}

FieldPtr Garment::make(Distance distance) const { return makeField(std::move(distance), m_body->bounds().grown(4)); }

Garment::Distance Garment::trunkCloth(const TopCut& cut) const {
  return [body = m_body, cut](const Vec3& p) {
    const double s = body->skeleton().stature();
    const Vec3 rest = body->skeleton().toRest(p);
    double d = body->trunkDistance(p);
    for (const Side side : kSides) d = body->joinLeg(d, body->legDistance(side, p), side, p, 7.0);
    const double loose = cut.hemEase * (1 - smoothStep(cut.hem * s, 0.66 * s, rest.z));
    d = d - cut.ease - loose;
    d = smoothMin(d, body->neckDistance(p) - cut.neckEase, 2.0);
    // Seated thighs reach forward out of the cloth.
    return smoothMax(d, -(rest.y + 0.108 * s + 0.2 * std::max(rest.z - 0.6 * s, 0.0)), 1.0);
  };
}

Garment::Distance Garment::sleeves(const TopCut& cut, Side side) const {
  return [body = m_body, cut, side](const Vec3& p) {
    const Limb& arm = body->skeleton().arm(side);
    const bool longSleeve = cut.sleeve > 1;
    const double along = longSleeve ? arm.lower.local(p).z - (cut.sleeve - 1) * arm.lowerLength
                                    : arm.upper.local(p).z - cut.sleeve * arm.upperLength;
    const double folds =
        0.12 * std::sin(1.1 * arm.lower.local(p).z + 0.35 * p.x) * std::exp(-0.012 * std::pow(arm.lower.local(p).z, 2));
    return openAt(body->armDistance(side, p) - cut.sleeveEase - folds, along, 3.0);
  };
}

Garment::Distance Garment::necklineCut(const TopCut& cut) const {
  return [body = m_body, cut](const Vec3& p) {
    const double s = body->skeleton().stature();
    const Vec3 rest = body->skeleton().toRest(p);
    const double plane = (rest.z + cut.neckSlope * -rest.y - cut.collar * s) / std::hypot(1.0, cut.neckSlope);
    double d = smoothMin(plane, cut.neckWidth - body->neckDistance(p), 1.0);
    if (cut.openFrom > 0) {
      const double side = cut.openSlope * (rest.z - cut.openFrom * s) - std::abs(rest.x);
      d = std::max(d, std::min(side / std::hypot(1.0, cut.openSlope), -rest.y));
    }
    return d;
  };
}

Garment::Distance Garment::hood(const TopCut& cut) const {
  const double s = m_body->skeleton().stature();
  const Frame neck = m_body->skeleton().neck();
  auto blob = std::make_shared<BlobField>();
  // Folded down: a thick roll around the neck, heavier at the back.
  constexpr int steps = 12;
  Vec3 last;
  for (int i = 0; i <= steps; ++i) {
    const double angle = mix(-2.35, 2.35, static_cast<double>(i) / steps);
    const double back = std::cos(angle) * 0.5 + 0.5;
    const Vec3 place =
        neck.point(Vec3{0.050 * std::sin(angle), 0.004 + 0.048 * std::cos(angle), -0.020 + 0.026 * back} * s);
    if (i > 0) blob->addCone(last, mix(0.013, 0.018, back) * s, place, mix(0.013, 0.018, back) * s, 0.01 * s);
    last = place;
  }
  blob->addEllipsoid(neck.at(neck.point(Vec3{0, 0.062, -0.028} * s)), Vec3{0.050, 0.018, 0.045} * s, 0.02 * s);
  return [blob, enabled = cut.hood](const Vec3& p) { return enabled ? blob->distance(p) : 1e3; };
}

FieldPtr Garment::top(const TopCut& cut) const {
  const auto trunk = trunkCloth(cut);
  const auto neckline = necklineCut(cut);
  const auto left = sleeves(cut, Side::Left);
  const auto right = sleeves(cut, Side::Right);
  const auto roll = hood(cut);
  return make([body = m_body, cut, trunk, neckline, left, right, roll](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    const double hem = cut.hem * skeleton.stature() - skeleton.toRest(p).z;
    double d = trunk(p);
    if (d > 25) return d;
    const double opening = neckline(p);
    if (cut.lapel > 0) d -= 0.5 * smoothStep(-cut.lapel, -cut.lapel + 1.4, opening);
    d = openAt(d, hem, 3.0);
    if (cut.sleeve > 0) {
      d = body->joinArm(d, left(p), Side::Left, p);
      d = body->joinArm(d, right(p), Side::Right, p);
    }
    d = smoothMax(d, opening, 0.4);
    return smoothMin(d, roll(p), 1.5);
  });
}

FieldPtr Garment::trousers(const TrouserCut& cut) const {
  const double s = m_body->skeleton().stature();
  std::array<std::shared_ptr<BlobField>, 2> legs;
  for (const Side side : kSides) {
    const Limb& leg = m_body->skeleton().leg(side);
    auto blob = std::make_shared<BlobField>();
    const double knee = mix(0.036, cut.hemRadius, 0.4) * s;
    blob->addCone(leg.upper.point({0, 0, 0.02 * s}), 0.050 * s + cut.thigh, leg.lower.origin, knee, 0);
    blob->addCone(leg.lower.origin, knee, leg.lower.point({0, 0, leg.lowerLength + 4}), cut.hemRadius * s, 0.02 * s);
    legs[static_cast<std::size_t>(side)] = blob;
  }
  return make([body = m_body, cut, legs](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    double d = body->trunkDistance(p) - cut.ease;
    for (const Side side : kSides) {
      const Limb& leg = skeleton.leg(side);
      const double along = leg.lower.local(p).z;
      const double folds = 0.11 * std::sin(0.9 * along + 0.25 * p.x) * std::exp(-0.006 * along * along) +
                           0.11 * std::sin(0.8 * along) * smoothStep(leg.lowerLength - 16, leg.lowerLength - 4, along);
      double cloth =
          smoothMin(body->legDistance(side, p) - cut.ease, legs[static_cast<std::size_t>(side)]->distance(p), 1);
      cloth = openAt(cloth - folds, along - leg.lowerLength + cut.hemAbove * skeleton.stature(), 4.0);
      d = body->joinLeg(d, cloth, side, p, 4.0);
    }
    return openAt(d, skeleton.toRest(p).z - cut.waist * skeleton.stature(), 0.5);
  });
}

Garment::Distance Garment::skirtCloth(const SkirtCut& cut) const {
  return [body = m_body, cut](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    const double s = skeleton.stature();
    const Limb& left = skeleton.leg(Side::Left);
    const Limb& right = skeleton.leg(Side::Right);
    const Vec3 around = skeleton.lap().local(p);
    const double t = std::clamp(around.z / left.upperLength, -0.1, 1.3);
    const Vec3 a = mix(left.upper.origin, left.lower.origin, t);
    const Vec3 b = mix(right.upper.origin, right.lower.origin, t);
    const Vec3 nearest = mix(a, b, alongLine(p, a, b));
    const double swing = smoothStep(0.05, 1.0, t);
    const double seated = skeleton.pose().seated ? 0.25 : 1.0;
    const double folds = cut.folds * swing * std::sin(9 * std::atan2(around.x, around.y) + 0.6);
    const double radius = mix(0.050, 0.034, std::clamp(t, 0.0, 1.0)) * s + cut.ease + seated * cut.flare * swing;
    const double legs = length(p - nearest) - radius - seated * folds;
    double d = smoothMin(body->trunkDistance(p) - cut.ease, legs, 3.0);
    // However wide the stride, no thigh comes through.
    for (const Side side : kSides) {
      const double shin = skeleton.leg(side).lower.local(p).z;
      d = smoothMin(d, smoothMax(body->legDistance(side, p) - cut.ease, shin - 2.0, 1.0), 1.0);
    }
    const double top = skeleton.toRest(p).z - cut.waist * s;
    return top > 0 ? std::max(d, top) : d;
  };
}

Garment::Distance Garment::skirtHem(const SkirtCut& cut) const {
  return [body = m_body, cut](const Vec3& p) {
    const Frame lap = body->skeleton().lap();
    const Vec3 knees =
        (body->skeleton().leg(Side::Left).lower.origin + body->skeleton().leg(Side::Right).lower.origin) * 0.5;
    return lap.local(p).z - cut.length * lap.local(knees).z;
  };
}

FieldPtr Garment::skirt(const SkirtCut& cut) const {
  const auto cloth = skirtCloth(cut);
  const auto hem = skirtHem(cut);
  return make([cloth, hem](const Vec3& p) { return openAt(cloth(p), hem(p), 5.0); });
}

FieldPtr Garment::dress(const TopCut& topCut, const SkirtCut& skirtCut) const {
  const FieldPtr upper = top(topCut);
  const auto cloth = skirtCloth(skirtCut);
  const auto hem = skirtHem(skirtCut);
  return make(
      [upper, cloth, hem](const Vec3& p) { return smoothMin(upper->distance(p), openAt(cloth(p), hem(p), 5.0), 1.2); });
}

FieldPtr Garment::tie(const TopCut& shirt, double until) const {
  const auto cloth = trunkCloth(shirt);
  return make([body = m_body, cloth, until, shirt](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    const double s = skeleton.stature();
    const Vec3 rest = skeleton.toRest(p);
    const double knot = (shirt.collar - 0.030) * s;
    const double width = rest.z > knot ? 1.7 : mix(4.2, 1.3, smoothStep(until * s, knot, rest.z));
    const double thick = rest.z > knot - 2.0 ? 1.1 : 0.65;
    double d = smoothMax(cloth(p) - thick, -cloth(p) - 0.8, 0.3);
    d = smoothMax(d, std::abs(rest.x) - width, 0.4);
    d = smoothMax(d, std::max(rest.z - knot - 1.6, until * s - rest.z), 0.4);
    return std::max(d, rest.y);
  });
}

}  // namespace samples
