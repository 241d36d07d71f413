#include "samples/clothing/WornThings.h"

#include "samples/body/Lap.h"
#include "samples/clothing/Strap.h"
#include "samples/geometry/BlobField.h"
#include "samples/geometry/BoxUnwrap.h"
#include "samples/geometry/Primitives.h"

namespace samples {
namespace {

using BodyPtr = std::shared_ptr<const ImplicitBody>;

Piece solid(FieldPtr field, std::uint16_t materialId, double cell, std::size_t triangles) {
  MeshDetail detail;
  detail.cell = cell;
  detail.triangles = triangles;
  detail.evenness = 5e-4;
  return {std::move(field), std::make_shared<BoxUnwrap>(), materialId, detail};
}

struct ShoeCut {
  double upper;   ///< grown over the foot
  double sole;    ///< the same of the sole
  double height;  ///< of the sole
};

ShoeCut cutOf(Worn shoes) {
  switch (shoes) {
    case Worn::Ballerinas:
      return {0.35, 0.45, 1.1};
    case Worn::Sneakers:
      return {0.55, 0.95, 2.2};
    case Worn::Boots:
      return {0.65, 0.95, 1.8};
    default:
      return {0.55, 0.95, 1.1};
  }
}

// Positive above the shoe's opening; `foot` is a place in the foot's frame.
double aboveOpening(Worn shoes, const Vec3& foot, double ankle, double shaft) {
  if (shoes == Worn::Ballerinas) return foot.z + ankle - 4.6 + 0.22 * std::abs(foot.y + 5);
  if (shoes == Worn::Boots) return foot.z - shaft;
  return foot.z + 0.20 * foot.y - (shoes == Worn::Sneakers ? 1.2 : 0.2);
}

std::vector<Piece> shoePieces(const BodyPtr& body, Worn shoes) {
  const Skeleton& skeleton = body->skeleton();
  const double ankle = skeleton.ankleHeight();
  const double shaft = 0.085 * skeleton.stature();
  const ShoeCut cut = cutOf(shoes);
  std::vector<Piece> pieces;
  for (const Side side : {Side::Left, Side::Right}) {
    const Frame foot = skeleton.leg(side).end;
    const Frame toes = skeleton.leg(side).toes;
    const double ball = -skeleton.ballForward();
    const auto overSole = [=](const Vec3& p) {
      const Vec3 local = foot.local(p);
      return mix(toes.local(p).z, local.z + ankle, smoothStep(ball - 2, ball + 2, local.y));
    };
    const FieldPtr grown = makeFoot(skeleton, side, cut.upper);
    const FieldPtr sole = makeFoot(skeleton, side, cut.sole);
    const auto around = [=](const Vec3& p) {
      if (shoes != Worn::Boots) return grown->distance(p);
      const double shin = std::max(body->legDistance(side, p) - 0.8, -foot.local(p).z - 1);
      return smoothMin(grown->distance(p), shin, 2.0);
    };
    const auto upper = [=](const Vec3& p) {
      const Vec3 local = foot.local(p);
      const double top = aboveOpening(shoes, local, ankle, shaft);
      const double d = around(p);
      const double outside = std::max(smoothMax(d, top, 0.4), 0.35 - overSole(p));
      return smoothMax(outside, -std::max({d + 0.9, -top - 2.5, 0.9 - overSole(p)}), 0.2);
    };
    const auto bottom = [=](const Vec3& p) { return smoothMax(sole->distance(p), overSole(p) - cut.height, 0.3); };
    Box bounds = grown->bounds();
    if (shoes == Worn::Boots)
      bounds.add(skeleton.leg(side).lower.point({0, 0, skeleton.leg(side).lowerLength - shaft}), 8);
    pieces.push_back(solid(makeField(upper, bounds), 0, 0.45, shoes == Worn::Boots ? 1300 : 1000));
    pieces.push_back(solid(makeField(bottom, sole->bounds()), 1, 0.45, 420));
  }
  return pieces;
}

// The trunk with neck, shoulders and lap, as straps lie on it.
double clothedDistance(const ImplicitBody& body, const Lap& lap, const Vec3& p) {
  double d = smoothMin(body.trunkDistance(p), body.neckDistance(p), 3.0);
  d = smoothMin(d, lap.hull(p, 0, 0, 0), 4.0);
  for (const Side side : {Side::Left, Side::Right}) {
    // Of an arm no more than the shoulder.
    const double away = length(p - body.skeleton().arm(side).upper.origin) / body.skeleton().stature();
    d = body.joinArm(d, body.armDistance(side, p) + 12 * smoothStep(0.035, 0.10, away), side, p);
  }
  return d;
}

// Places of the upright body, in parts of the stature, where the pose has moved them.
std::vector<Vec3> posed(const Skeleton& skeleton, const std::vector<Vec3>& path, double side = 1) {
  const double s = skeleton.stature();
  std::vector<Vec3> places;
  for (const Vec3& place : path) {
    const Vec3 rest = Vec3{side * place.x, place.y, place.z} * s;
    const Vec3 high = skeleton.chest().point(rest - Vec3{0, 0, skeleton.restChest()});
    const Vec3 low = skeleton.pelvis().point(rest - Vec3{0, 0, skeleton.restPelvis()});
    places.push_back(mix(low, high, smoothStep(0.56, 0.67, place.z)));
  }
  return places;
}

std::vector<Piece> backpack(const BodyPtr& body) {
  const Skeleton& skeleton = body->skeleton();
  const double s = skeleton.stature();
  const double size = s / 175;
  const Frame bag =
      skeleton.chest().at(skeleton.chest().point({0, 0.062 * s + 8.6 * size, 0.715 * s - skeleton.restChest()}));
  const auto sack = [=](const Vec3& p) {
    const Vec3 q = bag.local(p) * (1 / size);
    const double main = boxDistance(q - Vec3{0, 0, -2}, {13.5 - 0.06 * q.z, 7.5, 20}, 5.5);
    const double pocket = boxDistance(q - Vec3{0, 7.0, -9}, {10.5, 3.5, 9.5}, 3.0);
    const double seam = 0.25 * std::exp(-6 * std::pow(std::abs(q.y - 1.5) - 0.3, 2));
    return (smoothMin(main, pocket, 0.3) + seam) * size;
  };
  const Lap lap(skeleton);
  const FieldPtr onBody = makeField([=](const Vec3& p) { return clothedDistance(*body, lap, p); }, body->bounds());
  std::vector<Strap> straps;
  for (const double side : {-1.0, 1.0}) {
    // From the bag over the shoulder and back under the arm.
    straps.emplace_back(posed(skeleton,
                              {{0.045, 0.080, 0.790},
                               {0.056, 0.035, 0.835},
                               {0.060, -0.015, 0.830},
                               {0.064, -0.060, 0.780},
                               {0.074, -0.070, 0.730},
                               {0.092, -0.055, 0.690},
                               {0.108, -0.010, 0.665},
                               {0.098, 0.035, 0.650},
                               {0.060, 0.085, 0.640}},
                              side),
                        *onBody, Strap::Size{1.9 * size, 0.55, 2.6});
  }
  const auto bands = [=](const Vec3& p) {
    const double handle = torusDistance(bag.local(p) * (1 / size) - Vec3{0, -2, 18.5}, 3.2, 0.8) * size;
    return std::min({straps[0].distance(p), straps[1].distance(p), handle});
  };
  Box box;
  box.add(bag.origin, 28 * size);
  Box trunk;
  trunk.add(skeleton.chest().origin, 0.24 * s);
  return {solid(makeField(sack, box), 0, 0.6, 2200), solid(makeField(bands, trunk), 1, 0.4, 2000)};
}

std::vector<Piece> shoulderBag(const BodyPtr& body) {
  const Skeleton& skeleton = body->skeleton();
  const double s = skeleton.stature();
  const double size = s / 175;
  // Behind the left hip, where no arm swings.
  const double lift = skeleton.pose().seated ? 0.045 : 0.0;
  const Frame bag = skeleton.pelvis().child(
      Frame::rotated({0, 0, 116}, Vec3{0.100 * s, 0.052 * s + 3.2 * size, (0.505 + lift) * s - skeleton.restPelvis()}));
  const auto sack = [=](const Vec3& p) {
    const Vec3 q = bag.local(p) * (1 / size);
    const double main = boxDistance(q - Vec3{0, 0, 0}, {11.5, 3.8, 9.0}, 2.6);
    const double flap = boxDistance(q - Vec3{0, -0.6, 3.0}, {11.7, 4.0, 6.2}, 2.2);
    return smoothMin(main, flap, 0.15) * size;
  };
  const Lap lap(skeleton);
  const FieldPtr onBody = makeField([=](const Vec3& p) { return clothedDistance(*body, lap, p); }, body->bounds());
  // From the bag up to the other shoulder in front, and back down behind.
  const Strap strap(posed(skeleton, {{0.112, 0.060, 0.540 + lift},
                                     {0.112, 0.005, 0.550 + lift},
                                     {0.070, -0.070, 0.605 + lift},
                                     {0.017, -0.080, 0.690},
                                     {-0.032, -0.070, 0.770},
                                     {-0.060, -0.020, 0.830},
                                     {-0.058, 0.030, 0.832},
                                     {-0.032, 0.070, 0.770},
                                     {0.017, 0.065, 0.690},
                                     {0.065, 0.065, 0.610 + lift},
                                     {0.095, 0.080, 0.550 + lift}}),
                    *onBody, {1.6 * size, 0.5, 2.5});
  Box box;
  box.add(bag.origin, 18 * size);
  return {solid(makeField(sack, box), 0, 0.5, 1600),
          solid(makeField([strap](const Vec3& p) { return strap.distance(p); }, strap.bounds()), 1, 0.4, 1500)};
}

std::vector<Piece> scarf(const BodyPtr& body) {
  const Skeleton& skeleton = body->skeleton();
  const double s = skeleton.stature();
  const Frame neck = skeleton.neck();
  auto ring = std::make_shared<BlobField>();
  constexpr int steps = 20;
  Vec3 last;
  for (int i = 0; i <= steps; ++i) {
    const double angle = 2 * PI * i / steps;
    const double back = std::cos(angle) * 0.5 + 0.5;
    const Vec3 place =
        neck.point(Vec3{0.052 * std::sin(angle), -0.001 + 0.054 * std::cos(angle), mix(0.004, 0.020, back)} * s);
    if (i > 0) ring->addCone(last, 0.0195 * s, place, 0.0195 * s, 0.01 * s);
    last = place;
  }
  const auto lap = std::make_shared<Lap>(skeleton);
  const auto wrapped = [=](const Vec3& p) {
    const Vec3 local = neck.local(p);
    const double folds = 0.35 * std::sin(1.6 * local.z + 2 * std::atan2(local.x, local.y));
    const double around = ring->distance(p) + folds;
    const Vec3 rest = skeleton.toRest(p);
    const double d = clothedDistance(*body, *lap, p);
    const double end = smoothMax(std::max(d - 3.5, 0.8 - d), std::abs(rest.x - 0.022 * s) - 0.024 * s, 0.6);
    const double hanging = std::max({end, 0.66 * s - rest.z, rest.z - 0.81 * s, rest.y});
    return smoothMin(around, hanging, 1.0);
  };
  Box box;
  box.add(neck.origin, 0.10 * s);
  box.add(skeleton.chest().origin, 0.13 * s);
  return {solid(makeField(wrapped, box.grown(4)), 0, 0.5, 2400)};
}

}  // namespace

std::vector<Piece> wornPieces(const BodyPtr& body, Worn worn) {
  switch (worn) {
    case Worn::Backpack:
      return backpack(body);
    case Worn::ShoulderBag:
      return shoulderBag(body);
    case Worn::Scarf:
      return scarf(body);
    default:
      return shoePieces(body, worn);
  }
}

}  // namespace samples
