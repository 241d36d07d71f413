#include "samples/props/Props.h"

#include "samples/props/Furniture.h"
#include "samples/props/HandProps.h"
#include "samples/props/HeadProps.h"

namespace samples {
namespace {

double caneLength(const ImplicitBody& body) { return 0.428 * body.skeleton().stature(); }

// It hangs straight down whatever the hand does, and only turns with it.
Frame hanging(const Skeleton& skeleton) {
  const Frame grip = skeleton.grip(Side::Right);
  return Frame::rotated({0, 0, std::atan2(-grip.y.x, grip.y.y) * 180 / PI}, grip.origin);
}

// The tip stands on the ground ahead of a hand that is lower than the stick is long.
Frame leaningCane(const ImplicitBody& body) {
  const Vec3 hand = body.skeleton().grip(Side::Right).origin;
  const double tilt = std::acos(std::clamp((hand.z - 0.5) / caneLength(body), 0.0, 1.0));
  return Frame::rotated({-tilt * 180 / PI, 0, 0}, hand);
}

Frame beside(const Skeleton& skeleton, double left, double back, double turn) {
  return Frame::rotated({0, 0, turn}, {left * skeleton.stature(), back * skeleton.stature(), 0});
}

Frame suitcasePlacement(const ImplicitBody& body) {
  const Skeleton& skeleton = body.skeleton();
  const Pose& pose = skeleton.pose();
  const double apart = 12 / skeleton.stature();
  if (pose.id == "leaning") return beside(skeleton, 0.20, -0.18 - apart, 20);
  if (pose.id != "walking") return beside(skeleton, 0.20 + apart, pose.seated ? 0 : 0.06, 90);
  // Drawn behind: the handle's side faces the walker, tilted until the bar is in the hand and the wheels roll.
  const Vec3 hand = skeleton.grip(Side::Left).origin;
  const double wheel = 2.6;
  const double tilt = std::acos(std::clamp((hand.z - wheel) / (SUITCASE_HANDLE - wheel), -1.0, 1.0));
  Frame frame = Frame::rotated({0, 0, 90}).child(Frame::rotated({0, -tilt * 180 / PI, 0}));
  frame.origin = hand - frame.direction({-9, 0, SUITCASE_HANDLE});
  return frame;
}

// As near as the clothed shoulder and arm allow.
Frame lampPostPlacement(const ImplicitBody& body) {
  const Skeleton& skeleton = body.skeleton();
  const Vec3 shoulder = skeleton.arm(Side::Left).upper.origin;
  const double s = skeleton.stature();
  const auto clearance = [&](double x) {
    double nearest = 1e3;
    for (double z = 0.45 * s; z < 0.88 * s; z += 1.5) {
      nearest = std::min(nearest, body.figureDistance({x, shoulder.y, z}));
    }
    return nearest - LAMP_POST_RADIUS;
  };
  double x = shoulder.x + 60;
  while (x > shoulder.x && clearance(x) > 1.0) x -= 0.25;
  return Frame{}.at({x, shoulder.y, 0});
}

}  // namespace

double seatHeight(const ImplicitBody& seated) {
  const Skeleton& skeleton = seated.skeleton();
  double lowest = skeleton.pelvis().origin.z;
  // The lowest flesh and cloth above the seat, found by walking down from the hips.
  for (const double x : {-9.0, 0.0, 9.0}) {
    for (double y = -8; y <= 8; y += 2) {
      const Vec3 start = skeleton.pelvis().origin + Vec3{x, y, 0};
      double down = 0;
      while (down < 30 && seated.figureDistance(start - Vec3{0, 0, down}) < 0.8) down += 0.25;
      if (down < 30) lowest = std::min(lowest, start.z - down);
    }
  }
  return lowest + 0.3;
}

std::vector<Piece> propPieces(Prop prop, const ImplicitBody& body) {
  const double h = body.headShape().height();
  switch (prop) {
    case Prop::Handbag:
      return handbagPieces();
    case Prop::Briefcase:
      return briefcasePieces();
    case Prop::ShoppingBag:
      return shoppingBagPieces();
    case Prop::Book:
      return bookPieces();
    case Prop::Phone:
      return phonePieces();
    case Prop::Dumbbell:
      return dumbbellPieces();
    case Prop::Cane:
      return canePieces(caneLength(body));
    case Prop::Teddy:
      return teddyPieces(body.skeleton().stature() / 110);
    case Prop::Balloon:
      return balloonPieces();
    case Prop::SunHat:
      return sunHatPieces(h);
    case Prop::Fedora:
      return fedoraPieces(h);
    case Prop::FlatCap:
      return flatCapPieces(h);
    case Prop::BaseballCap:
      return baseballCapPieces(h);
    case Prop::Glasses:
      return glassesPieces(h);
    case Prop::Headphones:
      return headphonesPieces(h);
    case Prop::Stool:
      return stoolPieces(seatHeight(body));
    case Prop::Suitcase:
      return suitcasePieces();
    case Prop::Bicycle:
      return bicyclePieces();
    case Prop::Bench:
      return benchPieces();
    case Prop::LampPost:
      return lampPostPieces();
    case Prop::Umbrella:
      break;
  }
  return {};
}

Frame propPlacement(Prop prop, const ImplicitBody& body) {
  const Skeleton& skeleton = body.skeleton();
  switch (prop) {
    case Prop::Handbag:
    case Prop::Briefcase:
    case Prop::ShoppingBag:
    case Prop::Teddy:
    case Prop::Balloon:
      return hanging(skeleton);
    case Prop::Book:
    case Prop::Phone:
    case Prop::Dumbbell:
      return skeleton.grip(Side::Right);
    case Prop::Cane:
      return leaningCane(body);
    case Prop::SunHat:
    case Prop::Fedora:
    case Prop::FlatCap:
    case Prop::BaseballCap:
    case Prop::Glasses:
    case Prop::Headphones:
      return body.headShape().frame();
    case Prop::Stool:
      return Frame{}.at({skeleton.pelvis().origin.x, skeleton.pelvis().origin.y - 2, 0});
    case Prop::Suitcase:
      return suitcasePlacement(body);
    case Prop::Bicycle:
      return Frame{}.at({-0.22 * skeleton.stature() - 42, 0.05 * skeleton.stature(), 0});
    case Prop::Bench:
      return Frame{}.at({0, 0.22 * skeleton.stature() + 34, 0});
    case Prop::LampPost:
      return lampPostPlacement(body);
    case Prop::Umbrella:
      break;
  }
  return {};
}

}  // namespace samples
