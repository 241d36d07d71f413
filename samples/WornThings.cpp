#include "samples/WornThings.h"

#include "samples/BlobField.h"
#include "samples/Lap.h"
#include "samples/PropShapes.h"

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
  for (const Side side : {Side::Left, Side::Right}) d = body.joinArm(d, body.armDistance(side, p), side, p);
  return d;
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
  const auto lap = std::make_shared<Lap>(skeleton);
  const auto straps = [=](const Vec3& p) {
    const Vec3 rest = skeleton.toRest(p);
    const double d = clothedDistance(*body, *lap, p);
    // From the bag over the shoulders and back under the arms.
    const double low = (1 - smoothStep(0.655, 0.745, rest.z / s)) * (rest.y < 0.02 * s ? 1 : 0);
    const double band = (std::abs(std::abs(rest.x) - mix(0.062, 0.115, low) * s) - mix(1.9, 2.6, low) * size) * 0.8;
    const double end = rest.y < 0.045 * s ? 0.662 * s - rest.z : 0.74 * s - rest.z;
    const double strap = smoothMax(std::max(d - 2.7, 0.4 - d), band, 0.3);
    const double handle = torusDistance(bag.local(p) * (1 / size) - Vec3{0, -2, 18.5}, 3.2, 0.8) * size;
    return std::min(smoothMax(strap, end, 0.3), handle);
  };
  Box box;
  box.add(bag.origin, 28 * size);
  Box trunk;
  trunk.add(skeleton.chest().origin, 0.24 * s);
  return {solid(makeField(sack, box), 0, 0.6, 2200), solid(makeField(straps, trunk), 1, 0.45, 2000)};
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
  const auto lap = std::make_shared<Lap>(skeleton);
  const Vec3 shoulder = Vec3{-0.058, 0, 0.815} * s;
  const Vec3 hip = Vec3{0.098, 0, 0.555 + lift} * s;
  const Vec3 along = normalized(hip - shoulder);
  const Vec3 across = {along.z, 0, -along.x};
  const auto strap = [=](const Vec3& p) {
    const Vec3 rest = skeleton.toRest(p);
    const double d = clothedDistance(*body, *lap, p);
    const double band = std::abs(dot(rest - shoulder, across)) - 1.5 * size;
    const double ring = smoothMax(std::max(d - 3.0, 0.4 - d), band, 0.3);
    return std::max(ring, 1.0 - body->neckDistance(p));
  };
  Box box;
  box.add(bag.origin, 18 * size);
  Box trunk = body->bounds();
  return {solid(makeField(sack, box), 0, 0.5, 1600), solid(makeField(strap, trunk), 1, 0.45, 1500)};
}

std::vector<Piece> scarf(const BodyPtr& body) {
  const Skeleton& skeleton = body->skeleton();
  const double s = skeleton.stature();
  const Frame neck = skeleton.neck();
  auto ring = std::make_shared<BlobField>();
  constexpr int steps = 20;
  Vec3 last;
  for (int i = 0; i <= steps; ++i) {
    const double angle = 2 * kPi * i / steps;
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
