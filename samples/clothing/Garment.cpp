#include "samples/clothing/Garment.h"

namespace samples {
namespace {

constexpr std::array<Side, 2> SIDES = {Side::Left, Side::Right};
constexpr double WALL = 1.3;
// A depth for `openAt` that leaves no hollow.
constexpr double SOLID = -2;

// Cuts the cloth where `cut` is positive, and hollows it so far from there that nobody sees the bottom.
double openAt(double cloth, double cut, double depth) {
  const double hollow = std::max(cloth + WALL, -(cut + depth));
  return smoothMax(smoothMax(cloth, cut, 1.0), -hollow, 0.4);
}

bool tuckedIn(const TopCut& cut) { return cut.hem > 0.54; }

// Positive nearer to the lower bone than to the upper one: what ends on the upper half leaves a bent limb's lower half
// alone.
double onLowerHalf(const Limb& limb, const Vec3& p) {
  const Vec3 upper = mix(limb.upper.origin, limb.lower.origin, alongLine(p, limb.upper.origin, limb.lower.origin));
  const Vec3 end = limb.lower.point({0, 0, limb.lowerLength});
  const Vec3 lower = mix(limb.lower.origin, end, alongLine(p, limb.lower.origin, end));
  return length(p - upper) - length(p - lower);
}

// A thicker band of that height where the cloth ends.
double ribAt(double cut, double height) {
  return height > 0 ? 0.25 * smoothStep(-height - 0.3, -height + 1.0, cut) : 0.0;
}

// The right front lies over the left one and fades towards the side.
double overlapAt(const Vec3& straight, double overlap) {
  if (overlap < 0 || straight.y > 0) return 0;
  return 0.38 * smoothStep(-16, -4, straight.x) * (1 - smoothStep(overlap - 0.4, overlap + 0.4, straight.x));
}

}  // namespace

Garment::Garment(const ImplicitBody& body)
    : body_(std::make_shared<ImplicitBody>(body)), lap_(std::make_shared<Lap>(body.skeleton())) {}

FieldPtr Garment::make(Distance distance) const { return makeField(std::move(distance), body_->bounds().grown(5)); }

Garment::Distance Garment::hands(bool bareArms) const {
  return [body = body_, bareArms](const Vec3& p) {
    double d = -1e3;
    for (const Side side : SIDES) {
      d = std::max(d, 0.5 - body->handDistance(side, p));
      if (!bareArms) continue;
      d = std::max(d, std::min(0.4 - body->armDistance(side, p), body->skeleton().arm(side).lower.local(p).z));
    }
    return d;
  };
}

Garment::Distance Garment::trunkCloth(const TopCut& cut) const {
  return [body = body_, lap = lap_, cut](const Vec3& p) {
    const double s = body->skeleton().stature();
    double d = body->trunkDistance(p) - cut.ease;
    if (d > 30) return d;
    const Vec3 straight = lap->straight(p);
    const double loose = cut.hemEase * (1 - smoothStep(cut.hem * s, 0.66 * s, straight.z));
    const double lift = body->skeleton().pose().seated ? 1.6 : 0.0;
    if (!tuckedIn(cut) || cut.hem >= 0.60) d = smoothMin(d, lap->hull(p, cut.ease + lift, 0, 0), 3.5);
    d -= loose + overlapAt(straight, cut.overlap);
    return smoothMin(d, body->neckDistance(p) - cut.neckEase, 2.0);
  };
}

Garment::Distance Garment::sleeves(const TopCut& cut, Side side) const {
  return [body = body_, cut, side](const Vec3& p) {
    const Limb& arm = body->skeleton().arm(side);
    const double d = body->armDistance(side, p);
    if (d > 15) return d - 5;
    const bool longSleeve = cut.sleeve > 1;
    const Vec3 lower = arm.lower.local(p);
    const double along = longSleeve
                             ? lower.z - (cut.sleeve - 1) * arm.lowerLength
                             : std::max(arm.upper.local(p).z - cut.sleeve * arm.upperLength, onLowerHalf(arm, p));
    const double folds =
        longSleeve ? 0.12 * std::sin(1.1 * lower.z + 0.35 * p.x) * std::exp(-0.012 * lower.z * lower.z) : 0;
    const double flare = cut.sleeveFlare * smoothStep(-14, 0, along);
    return openAt(d - cut.sleeveEase - folds - flare - ribAt(along, cut.rib), along, 3.0);
  };
}

Garment::Distance Garment::necklineCut(const TopCut& cut) const {
  return [body = body_, cut](const Vec3& p) {
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
  if (!cut.hood) return {};
  const double s = body_->skeleton().stature();
  const Frame neck = body_->skeleton().neck();
  auto blob = std::make_shared<BlobField>();
  // Folded down: a thick roll around the neck, heavier at the back, open in front.
  constexpr int steps = 14;
  Vec3 last;
  double lastRadius = 0;
  for (int i = 0; i <= steps; ++i) {
    const double angle = mix(-2.55, 2.55, static_cast<double>(i) / steps);
    const double back = std::cos(angle) * 0.5 + 0.5;
    const Vec3 place =
        neck.point(Vec3{0.056 * std::sin(angle), 0.002 + 0.056 * std::cos(angle), -0.008 + 0.030 * back} * s);
    const double radius = mix(0.014, 0.024, back) * s;
    if (i > 0) blob->addCone(last, lastRadius, place, radius, 0.01 * s);
    last = place;
    lastRadius = radius;
  }
  blob->addEllipsoid(neck.at(neck.point(Vec3{0, 0.070, -0.034} * s)), Vec3{0.062, 0.028, 0.062} * s, 0.02 * s);
  return [blob](const Vec3& p) { return blob->distance(p); };
}

FieldPtr Garment::top(const TopCut& cut) const {
  const auto trunk = trunkCloth(cut);
  const auto neckline = necklineCut(cut);
  const auto left = sleeves(cut, Side::Left);
  const auto right = sleeves(cut, Side::Right);
  const auto roll = hood(cut);
  const auto away = hands(cut.sleeve <= 1.2);
  // What ends above the hips is hidden by what is worn below, and a lap closes what lies on it.
  const bool isFilled = tuckedIn(cut) || body_->skeleton().pose().seated;
  return make([body = body_, cut, isFilled, trunk, neckline, below = hem(cut), left, right, roll, away](const Vec3& p) {
    double d = trunk(p);
    const bool onTrunk = d < 25;
    const double opening = onTrunk ? neckline(p) : 0;
    if (onTrunk) {
      const double hem = below(p);
      if (cut.lapel > 0) d -= cut.lapelThickness * smoothStep(-cut.lapel, -cut.lapel + 0.8, opening);
      d -= std::max(ribAt(opening, 0.6 * cut.rib), ribAt(hem, cut.rib));
      d = smoothMax(openAt(d, hem, isFilled ? SOLID : 3.0), away(p), 0.8);
    }
    if (cut.sleeve > 0) {
      d = body->joinArm(d, left(p), Side::Left, p);
      d = body->joinArm(d, right(p), Side::Right, p);
    }
    if (d > 20) return d;
    d = smoothMax(d, onTrunk ? opening : neckline(p), cut.lapel > 0 ? 0.4 : 1.4);
    return roll ? smoothMin(d, roll(p), 1.2) : d;
  });
}

FieldPtr Garment::trousers(const TrouserCut& cut) const {
  const double s = body_->skeleton().stature();
  std::array<std::shared_ptr<BlobField>, 2> legs;
  for (const Side side : SIDES) {
    const Limb& leg = body_->skeleton().leg(side);
    auto blob = std::make_shared<BlobField>();
    const double knee = mix(0.036, cut.hemRadius, cut.length < 2 ? 1.0 : 0.4) * s;
    blob->addCone(leg.upper.point({0, 0, 0.02 * s}), 0.050 * s + cut.thigh, leg.lower.origin, knee, 0);
    blob->addCone(leg.lower.origin, knee, leg.lower.point({0, 0, leg.lowerLength + 4}), cut.hemRadius * s, 0.006 * s);
    legs[static_cast<std::size_t>(side)] = blob;
  }
  return make([body = body_, cut, legs, away = hands(true)](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    double d = body->trunkDistance(p) - cut.ease;
    for (const Side side : SIDES) {
      const Limb& leg = skeleton.leg(side);
      const double lower = leg.lower.local(p).z;
      const double folds = 0.11 * std::sin(0.9 * lower + 0.25 * p.x) * std::exp(-0.006 * lower * lower) +
                           0.11 * std::sin(0.8 * lower) * smoothStep(leg.lowerLength - 16, leg.lowerLength - 4, lower);
      const double along = cut.length < 1
                               ? std::max(leg.upper.local(p).z - cut.length * leg.upperLength, onLowerHalf(leg, p))
                               : lower - (cut.length - 1) * leg.lowerLength;
      double cloth =
          smoothMin(body->legDistance(side, p) - cut.ease, legs[static_cast<std::size_t>(side)]->distance(p), 1);
      cloth = openAt(cloth - folds, along + cut.hemAbove * skeleton.stature(), 4.0);
      d = body->joinLeg(d, cloth, side, p, 4.0);
    }
    d = openAt(d, skeleton.toRest(p).z - cut.waist * skeleton.stature(), 0.5);
    return d > 3 ? d : smoothMax(d, away(p), 0.8);
  });
}

Garment::Distance Garment::skirtCloth(const SkirtCut& cut) const {
  return [body = body_, lap = lap_, cut](const Vec3& p) {
    const Skeleton& skeleton = body->skeleton();
    double d = smoothMin(body->trunkDistance(p) - cut.ease, lap->hull(p, cut.ease, cut.flare, cut.folds), 3.5);
    // However wide the stride, no thigh comes through.
    for (const Side side : SIDES) {
      const double shin = skeleton.leg(side).lower.local(p).z;
      d = smoothMin(d, smoothMax(body->legDistance(side, p) - cut.ease, shin - 2.0, 1.0), 1.0);
    }
    if (cut.overlap >= 0 && d < 4) d -= overlapAt(lap->straight(p), cut.overlap);
    const double top = (lap->straight(p).z - cut.waist * skeleton.stature()) / lap->stretch();
    return top > 0 ? std::max(d, top) : d;
  };
}

Garment::Distance Garment::hem(const TopCut& cut) const {
  const double height = cut.hem * body_->skeleton().stature();
  return [lap = lap_, height](const Vec3& p) { return (height - lap->straight(p).z) / lap->stretch(); };
}

Garment::Distance Garment::hem(const SkirtCut& cut) const {
  // Beyond the knees a seated lap has nothing to lie on.
  const double length = body_->skeleton().pose().seated ? std::min(cut.length, 1.0) : cut.length;
  return [lap = lap_, length](const Vec3& p) { return lap->beyond(p, length); };
}

FieldPtr Garment::skirt(const SkirtCut& cut) const {
  return make([cloth = skirtCloth(cut), below = hem(cut), away = hands(true)](const Vec3& p) {
    const double d = openAt(cloth(p), below(p), 5.0);
    return d > 3 ? d : smoothMax(d, away(p), 0.8);
  });
}

FieldPtr Garment::dress(const TopCut& topCut, const SkirtCut& skirtCut) const {
  const FieldPtr upper = top(topCut);
  const FieldPtr lower = skirt(skirtCut);
  return make([upper, lower](const Vec3& p) { return smoothMin(upper->distance(p), lower->distance(p), 1.2); });
}

FieldPtr Garment::tie(const TopCut& shirt, double until) const {
  const auto cloth = trunkCloth(shirt);
  return make([body = body_, cloth, until, shirt](const Vec3& p) {
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

FieldPtr Garment::belt(const TrouserCut& trousers) const {
  return make([body = body_, trousers](const Vec3& p) {
    const double s = body->skeleton().stature();
    const double height = std::abs(body->skeleton().toRest(p).z - (trousers.waist - 0.006) * s) - 0.010 * s;
    const double d = body->trunkDistance(p) - trousers.ease;
    return smoothMax(smoothMax(d - 0.35, height, 0.6), -d - 1.2, 0.3);
  });
}

FieldPtr Garment::buttons(const TopCut& cut, double aside, double from, double to, int count, double radius) const {
  const auto cloth = trunkCloth(cut);
  const Skeleton& skeleton = body_->skeleton();
  const double s = skeleton.stature();
  const FieldPtr surface = makeField(cloth, body_->bounds());
  auto blob = std::make_shared<BlobField>();
  // Those on a seated lap lie in its folds.
  const double lowest = skeleton.pose().seated ? std::max(from, std::min(0.615, to)) : from;
  for (int i = 0; i < count; ++i) {
    const double z = s * mix(lowest, to, count > 1 ? static_cast<double>(i) / (count - 1) : 0.0);
    const bool low = z < 0.62 * s;
    const Frame& part = low ? skeleton.pelvis() : skeleton.chest();
    const double above = z - (low ? skeleton.restPelvis() : skeleton.restChest());
    Vec3 place = part.point({aside, -40, above});
    for (int step = 0; step < 60 && cloth(place) > 0.02; ++step) place = place + part.y * (0.7 * cloth(place));
    const Vec3 out = surface->normal(place);
    blob->addEllipsoid(Frame::aimed(place, out, Vec3{0, 0, 1}), {radius, radius, 0.45 * radius}, 0);
  }
  return blob;
}

FieldPtr Garment::zip(const TopCut& cut, double until) const {
  const auto cloth = trunkCloth(cut);
  const auto neckline = necklineCut(cut);
  return make([body = body_, lap = lap_, cloth, neckline, until](const Vec3& p) {
    const Vec3 rest = lap->straight(p);
    const double d = cloth(p);
    const double ends = std::max(neckline(p), until * body->skeleton().stature() - rest.z);
    const double teeth = smoothMax(d - 0.25, -d - 0.6, 0.1);
    return std::max({smoothMax(teeth, std::abs(rest.x) - 0.55, 0.2), ends, rest.y});
  });
}

}  // namespace samples
