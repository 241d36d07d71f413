#include "samples/Props.h"

#include "samples/PropShapes.h"

namespace samples {
namespace {

using Distance = FunctionField::Function;

constexpr double kSuitcaseHandle = 94;

Piece solid(Distance distance, const Vec3& low, const Vec3& high, std::uint16_t materialId, double cell,
            std::size_t triangles) {
  Box box;
  box.add(low);
  box.add(high);
  MeshDetail detail;
  detail.cell = cell;
  detail.triangles = triangles;
  // Smooth normals across large flat triangles would look dented.
  detail.evenness = 3e-3;
  return {makeField(std::move(distance), box), std::make_shared<BoxUnwrap>(), materialId, detail};
}

// The hand closes around the highest place of the handle, which is the origin.
std::vector<Piece> handbag() {
  const auto bag = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, -21.5};
    const double narrow = 1 + 0.012 * (q.z + 8.5);
    const double body = boxDistance({q.x, q.y * narrow, q.z}, {4.8, 13.0, 8.8}, 2.2);
    const double flap = boxDistance(q - Vec3{-0.4, 0, 3.2}, {5.1, 13.0, 5.9}, 1.6);
    return smoothMin(body, flap, 0.15);
  };
  const auto handle = [](const Vec3& p) {
    const double arch = std::abs(torusDistance({p.y, (p.z + 13.0) * 0.59, p.x}, 7.6, 0.0)) - 0.62;
    return std::max(arch, -13.8 - p.z);
  };
  const auto clasp = [](const Vec3& p) { return boxDistance(p - Vec3{-5.5, 0, -23.6}, {0.55, 1.6, 1.2}, 0.35); };
  return {solid(bag, {-6, -15, -31}, {6, 15, -12}, 0, 0.5, 2600),
          solid(handle, {-1, -9, -14.2}, {1, 9, 1}, 0, 0.3, 900),
          solid(clasp, {-6.5, -2, -25}, {-4.5, 2, -22}, 1, 0.25, 260)};
}

std::vector<Piece> briefcase() {
  const auto bag = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, -18.6};
    const double body = boxDistance(q, {4.6, 19.5, 13.8}, 1.6);
    const double flap = boxDistance(q - Vec3{0, 0, 5}, {4.95, 19.6, 9.0}, 1.5);
    return smoothMin(body, flap, 0.12);
  };
  const auto handle = [](const Vec3& p) {
    const double bar = rodDistance(p, {0, -4.6, 0}, {0, 4.6, 0}, 0.85);
    const double front = rodDistance(p, {0, -4.6, 0}, {0, -6.0, -5.2}, 0.6);
    const double back = rodDistance(p, {0, 4.6, 0}, {0, 6.0, -5.2}, 0.6);
    return smoothMin(bar, std::min(front, back), 0.6);
  };
  const auto clasps = [](const Vec3& p) {
    return boxDistance(Vec3{std::abs(p.x), std::abs(p.y), p.z} - Vec3{4.9, 11.0, -20.4}, {0.5, 1.5, 2.0}, 0.3);
  };
  return {solid(bag, {-6, -21, -33}, {6, 21, -4}, 0, 0.6, 2600),
          solid(handle, {-1.5, -8, -6.5}, {1.5, 8, 1.2}, 0, 0.3, 700),
          solid(clasps, {-6, -13.5, -23}, {6, 13.5, -18}, 1, 0.3, 600)};
}

// Hats sit in head space: chin at the origin, facing -Y, made for a head of this height.
std::vector<Piece> hat(double h, bool wide) {
  const Frame seat = Frame::rotated({wide ? -8.0 : -6.0, 0, 0}, Vec3{0, 0.055, 0.735} * h);
  const double rx = 0.372 * h, ry = 0.450 * h;
  const auto oval = [=](const Vec3& q) { return Vec3{q.x * (ry / rx), q.y, q.z}; };
  const auto crown = [=](const Vec3& p) {
    const Vec3 q = oval(seat.local(p));
    const double height = (wide ? 0.40 : 0.45) * h;
    const double taper = 1 + (wide ? 0.10 : 0.16) * q.z / height;
    const double top =
        cylinderDistance(Vec3{q.x * taper, q.y * taper, q.z - 0.5 * height}, ry, 0.5 * height, 0.13 * h) * 0.82;
    const double pinch = wide ? 1e3 : std::hypot(q.x * 1.7, (q.z - height - 0.06 * h)) - 0.16 * h;
    const double dent = wide ? top : smoothMax(top, -pinch, 0.10 * h);
    const double reach = ry + (wide ? 0.34 : 0.20) * h;
    const double r = std::hypot(q.x, q.y);
    const double wave = wide ? 0.035 * h * smoothStep(ry, reach, r) * (std::sin(3 * std::atan2(q.x, q.y) + 1) - 1.2)
                             : 0.05 * h * smoothStep(ry, reach, r) * std::pow(q.x / reach, 2) * 2;
    const double brim = cylinderDistance({q.x, q.y, q.z - wave}, reach, 0.35, 0.3) * 0.82;
    return smoothMin(dent, brim, 1.0);
  };
  const auto ribbon = [=](const Vec3& p) {
    const Vec3 q = oval(seat.local(p));
    return cylinderDistance(q - Vec3{0, 0, 0.075 * h}, ry + 0.22, 0.050 * h, 0.2) * 0.82;
  };
  const double r = 0.95 * h;
  return {solid(crown, {-r, -r, 0.55 * h}, {r, r, 1.4 * h}, 0, 0.42, 5000),
          solid(ribbon, {-0.6 * h, -0.6 * h, 0.6 * h}, {0.6 * h, 0.6 * h, 1.0 * h}, 1, 0.42, 900)};
}

std::vector<Piece> glasses(double h) {
  const auto rim = [h](const Vec3& p) {
    const Vec3 q{std::abs(p.x), p.y, p.z};
    const Vec3 eye = Vec3{0.140, -0.383, 0.482} * h;
    const Frame lens = Frame::rotated({0, 0, 12}, eye);
    const Vec3 l = lens.local(q);
    const double ring = torusDistance({l.x * 0.90, l.z * 1.12, l.y}, 0.088 * h, 0.26);
    const double bridge = rodDistance(q, Vec3{0, -0.412, 0.500} * h, Vec3{0.062, -0.398, 0.500} * h, 0.22);
    const double arm = rodDistance(q, Vec3{0.236, -0.355, 0.515} * h, Vec3{0.350, 0.045, 0.525} * h, 0.24);
    const double hook = rodDistance(q, Vec3{0.350, 0.045, 0.525} * h, Vec3{0.352, 0.130, 0.430} * h, 0.24);
    return smoothMin(std::min(ring, bridge), std::min(arm, hook), 0.2);
  };
  const auto lens = [h](const Vec3& p) {
    const Vec3 q{std::abs(p.x), p.y, p.z};
    const Vec3 l = Frame::rotated({0, 0, 12}, Vec3{0.140, -0.383, 0.482} * h).local(q);
    return std::max(std::hypot(l.x * 0.90, l.z * 1.12) - 0.088 * h, std::abs(l.y) - 0.13);
  };
  const Vec3 low = Vec3{-0.40, -0.46, 0.34} * h;
  const Vec3 high = Vec3{0.40, 0.18, 0.62} * h;
  return {solid(rim, low, high, 0, 0.16, 3000), solid(lens, low, {high.x, -0.30 * h, high.z}, 1, 0.16, 500)};
}

std::vector<Piece> headphones(double h) {
  const Vec3 ear = Vec3{0.375, 0.055, 0.455} * h;
  const auto band = [=](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0.055 * h, 0.60 * h};
    const double radius = 0.435 * h;
    const double arch = std::hypot((std::hypot(q.x * 1.02, q.z * 0.96) - radius) / 0.55, q.y / 1.1) * 0.55 - 0.55;
    return std::max(arch, -q.z - 0.15 * h);
  };
  const auto cups = [=](const Vec3& p) {
    const Vec3 q = Vec3{std::abs(p.x), p.y, p.z} - ear - Vec3{0.035 * h, 0, 0};
    return cylinderDistance({q.y, q.z * 0.86, q.x}, 0.125 * h, 0.045 * h, 0.6);
  };
  const auto pads = [=](const Vec3& p) {
    const Vec3 q = Vec3{std::abs(p.x), p.y, p.z} - ear + Vec3{0.018 * h, 0, 0};
    return torusDistance({q.y, q.z * 0.86, q.x}, 0.085 * h, 0.040 * h);
  };
  const Vec3 low = Vec3{-0.56, -0.20, 0.24} * h;
  const Vec3 high = Vec3{0.56, 0.30, 1.12} * h;
  return {solid(band, low, high, 0, 0.3, 1400), solid(cups, low, high, 0, 0.35, 1200),
          solid(pads, low, high, 1, 0.35, 1200)};
}

std::vector<Piece> stool(double height) {
  const auto seat = [height](const Vec3& p) {
    return std::max(cylinderDistance(p - Vec3{0, 0, height - 1.6}, 18.5, 1.6, 1.0), p.z - height);
  };
  const auto legs = [height](const Vec3& p) {
    const Vec3 q{std::abs(p.x), std::abs(p.y), p.z};
    const Vec3 top{9.5, 9.5, height - 2.6};
    const Vec3 foot{14.0, 14.0, 1.0};
    double d = rodDistance(q, top, foot, 1.45);
    const Vec3 rung = mix(foot, top, 0.38);
    d = smoothMin(d, rodDistance(q, rung, {-rung.x, rung.y, rung.z}, 0.85), 0.5);
    d = smoothMin(d, rodDistance(q, rung, {rung.x, -rung.y, rung.z}, 0.85), 0.5);
    return smoothMax(d, -p.z, 0.1);
  };
  return {solid(seat, {-20, -20, height - 4}, {20, 20, height + 1}, 0, 0.6, 1400),
          solid(legs, {-17, -17, 0}, {17, 17, height - 1}, 0, 0.5, 3200)};
}

// Stands on its wheels; the bar of the handle is straight above the origin.
std::vector<Piece> suitcase() {
  const auto shell = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, 33.5};
    const double ribs = 0.35 * std::cos(q.y * 1.05) * (1 - smoothStep(13, 16, std::abs(q.y)));
    const double split = 0.35 * std::exp(-4 * q.x * q.x);
    return boxDistance(q, {12.0, 19.0, 28.0}, 4.5) + 0.35 * split -
           std::max(ribs, 0.0) * smoothStep(6, 10, std::abs(q.x));
  };
  const auto metal = [](const Vec3& p) {
    const Vec3 q{p.x, std::abs(p.y), p.z};
    double d = rodDistance(q, {-9, 7.0, 58}, {-9, 7.0, kSuitcaseHandle}, 0.65);
    d = smoothMin(d, boxDistance(p - Vec3{-9, 0, kSuitcaseHandle}, {1.1, 8.6, 1.1}, 1.0), 0.4);
    const Vec3 wheel{std::abs(p.x) - 8.5, q.y - 14.5, p.z - 2.6};
    d = std::min(d, cylinderDistance({wheel.y, wheel.z, wheel.x}, 2.6, 1.1, 0.5));
    d = std::min(d, boxDistance(wheel - Vec3{0, 0, 2.4}, {1.8, 1.6, 1.8}, 0.6));
    return std::min(d, boxDistance(p - Vec3{0, 0, 62.6}, {1.2, 6.0, 1.4}, 0.9));
  };
  return {solid(shell, {-14, -21, 4}, {14, 21, 63}, 0, 0.7, 8000),
          solid(metal, {-12, -19, 0}, {12, 19, kSuitcaseHandle + 2}, 1, 0.45, 4200)};
}

Frame suitcasePlacement(const ImplicitBody& body) {
  const Skeleton& skeleton = body.skeleton();
  const Vec3 hand = skeleton.grip(Side::Left).origin;
  const bool pulled = skeleton.pose().leftArm.forward < -10;
  if (!pulled) {
    const double aside = skeleton.pose().seated ? 0.30 : 0.27;
    return Frame::rotated({0, 0, 90},
                          {aside * skeleton.stature(), skeleton.pose().seated ? 0 : 0.06 * skeleton.stature(), 0});
  }
  // Drawn behind: the handle's side faces the walker, tilted until the bar is in the hand and the wheels roll.
  const double wheel = 2.6;
  const double tilt = std::acos(std::clamp((hand.z - wheel) / (kSuitcaseHandle - wheel), -1.0, 1.0));
  Frame frame = Frame::rotated({0, 0, 90}).child(Frame::rotated({0, -tilt * 180 / kPi, 0}));
  frame.origin = hand - frame.direction({-9, 0, kSuitcaseHandle});
  return frame;
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
      return handbag();
    case Prop::Briefcase:
      return briefcase();
    case Prop::SunHat:
      return hat(h, true);
    case Prop::Fedora:
      return hat(h, false);
    case Prop::Glasses:
      return glasses(h);
    case Prop::Headphones:
      return headphones(h);
    case Prop::Stool:
      return stool(seatHeight(body));
    case Prop::Suitcase:
      return suitcase();
  }
  return {};
}

Frame propPlacement(Prop prop, const ImplicitBody& body) {
  const Skeleton& skeleton = body.skeleton();
  switch (prop) {
    case Prop::Handbag:
    case Prop::Briefcase: {
      // It hangs straight down whatever the hand does, and only turns with it.
      const Frame grip = skeleton.grip(Side::Right);
      return Frame::rotated({0, 0, std::atan2(-grip.y.x, grip.y.y) * 180 / kPi}, grip.origin);
    }
    case Prop::SunHat:
    case Prop::Fedora:
    case Prop::Glasses:
    case Prop::Headphones:
      return body.headShape().frame();
    case Prop::Stool:
      return Frame{}.at({skeleton.pelvis().origin.x, skeleton.pelvis().origin.y - 2, 0});
    case Prop::Suitcase:
      return suitcasePlacement(body);
  }
  return {};
}

}  // namespace samples
