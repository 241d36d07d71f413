#include "samples/props/Furniture.h"

#include "samples/geometry/Primitives.h"
#include "samples/props/PropPiece.h"

namespace samples {

std::vector<Piece> stoolPieces(double height) {
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
  return {propPiece(seat, {-20, -20, height - 4}, {20, 20, height + 1}, 0, 0.6, 1400),
          propPiece(legs, {-17, -17, 0}, {17, 17, height - 1}, 0, 0.5, 3200)};
}

std::vector<Piece> suitcasePieces() {
  const auto shell = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, 33.5};
    const double ribs = 0.35 * std::cos(q.y * 1.05) * (1 - smoothStep(13, 16, std::abs(q.y)));
    const double split = 0.35 * std::exp(-4 * q.x * q.x);
    return boxDistance(q, {12.0, 19.0, 28.0}, 4.5) + 0.35 * split -
           std::max(ribs, 0.0) * smoothStep(6, 10, std::abs(q.x));
  };
  const auto metal = [](const Vec3& p) {
    const Vec3 q{p.x, std::abs(p.y), p.z};
    double d = rodDistance(q, {-9, 7.0, 58}, {-9, 7.0, SUITCASE_HANDLE}, 0.65);
    d = smoothMin(d, boxDistance(p - Vec3{-9, 0, SUITCASE_HANDLE}, {1.1, 8.6, 1.1}, 1.0), 0.4);
    const Vec3 wheel{std::abs(p.x) - 8.5, q.y - 14.5, p.z - 2.6};
    d = std::min(d, cylinderDistance({wheel.y, wheel.z, wheel.x}, 2.6, 1.1, 0.5));
    d = std::min(d, boxDistance(wheel - Vec3{0, 0, 2.4}, {1.8, 1.6, 1.8}, 0.6));
    return std::min(d, boxDistance(p - Vec3{0, 0, 62.6}, {1.2, 6.0, 1.4}, 0.9));
  };
  return {propPiece(shell, {-14, -21, 4}, {14, 21, 63}, 0, 0.7, 8000),
          propPiece(metal, {-12, -19, 0}, {12, 19, SUITCASE_HANDLE + 2}, 1, 0.45, 4200)};
}

std::vector<Piece> benchPieces() {
  const auto slats = [](const Vec3& p) {
    double d = 1e3;
    for (const double y : {-17.0, -6.0, 5.0, 16.0})
      d = std::min(d, boxDistance(p - Vec3{0, y, 44}, {75, 4.6, 1.6}, 0.6));
    const Frame back = Frame::rotated({-14, 0, 0}, {0, 21, 46});
    const Vec3 q = back.local(p);
    for (const double z : {12.0, 24.0, 36.0}) d = std::min(d, boxDistance(q - Vec3{0, 0, z}, {75, 1.5, 4.6}, 0.6));
    return d;
  };
  const auto iron = [](const Vec3& p) {
    const Vec3 q{std::abs(p.x) - 62, p.y, p.z};
    double d = rodDistance(q, {0, -20, 1.5}, {0, -18, 42}, 1.7);
    d = smoothMin(d, rodDistance(q, {0, 24, 1.5}, {0, 19, 42}, 1.7), 1.0);
    d = smoothMin(d, rodDistance(q, {0, -18, 41.5}, {0, 20, 41.5}, 1.5), 1.5);
    d = smoothMin(d, rodDistance(q, {0, 21, 42}, {0, 33.5, 85}, 1.5), 1.5);
    d = smoothMin(d, rodDistance(q, {0, -20, 62}, {0, 26, 62}, 1.6), 1.0);
    return smoothMin(d, rodDistance(q, {0, -19, 42}, {0, -20, 62}, 1.4), 1.0);
  };
  return {propPiece(slats, {-77, -23, 41}, {77, 40, 90}, 0, 0.9, 2600),
          propPiece(iron, {-66, -24, -1}, {66, 38, 88}, 1, 0.7, 3000)};
}

std::vector<Piece> bicyclePieces() {
  constexpr double wheel = 33, reach = 52;
  const Vec3 pedals{0, 5, 28}, saddle{0, 21, 80}, head{0, -35, 84}, front{0, -reach, wheel}, rear{0, reach, wheel};
  const auto frame = [=](const Vec3& p) {
    double d = rodDistance(p, pedals, saddle, 1.6);
    d = smoothMin(d, rodDistance(p, saddle - Vec3{0, 1.5, 6}, head, 1.6), 0.8);
    d = smoothMin(d, rodDistance(p, pedals, head - Vec3{0, 1.5, 8}, 1.9), 0.8);
    d = smoothMin(d, rodDistance(p, head, head - Vec3{0, 3.2, 15}, 2.1), 0.8);
    const Vec3 q{std::abs(p.x), p.y, p.z};
    d = smoothMin(d, rodDistance(q, {4, front.y, front.z}, {3.2, -39.2, 68}, 1.1), 0.8);
    d = smoothMin(d, rodDistance(q, {0, -39.2, 68}, {3.2, -39.2, 68}, 1.3), 0.8);
    d = smoothMin(d, rodDistance(q, {4, rear.y, rear.z}, {1.5, pedals.y, pedals.z}, 1.0), 0.8);
    return smoothMin(d, rodDistance(q, {4, rear.y, rear.z}, {1.2, 20, 72}, 0.9), 0.8);
  };
  const auto metal = [=](const Vec3& p) {
    const Vec3 q{std::abs(p.x), p.y, p.z};
    double d = rodDistance(p, head, head + Vec3{0, 3, 14}, 1.3);
    d = smoothMin(d, rodDistance(q, {0, -32, 98}, {20, -28, 101}, 1.2), 0.8);
    d = std::min(d, rodDistance(p, saddle, saddle + Vec3{0, 2, 12}, 1.3));
    for (const Vec3& hub : {front, rear}) {
      const Vec3 w = p - hub;
      const double r = std::hypot(w.y, w.z);
      d = std::min(d, std::hypot(r - (wheel - 3.6), w.x) - 1.1);
      d = std::min(d, cylinderDistance({w.y, w.z, w.x}, 2.2, 4.6, 0.5));
      const double turn = std::atan2(w.z, w.y) * 6 / PI;
      const double spoke = std::abs(turn - std::round(turn)) * PI / 6 * r;
      d = std::min(d, std::max(std::hypot(spoke, w.x) - 0.28, r - wheel + 4));
    }
    const Vec3 crank = p - pedals;
    d = std::min(d, std::abs(torusDistance({crank.y, crank.z, crank.x - 3}, 9, 0)) - 0.7);
    d = std::min(d, rodDistance(crank, {4, 0, 0}, {5, 10, -13}, 0.9));
    return std::min(d, rodDistance(crank, {-4, 0, 0}, {-5, -10, 13}, 0.9));
  };
  const auto rubber = [=](const Vec3& p) {
    double d = 1e3;
    for (const Vec3& hub : {front, rear}) {
      const Vec3 w = p - hub;
      d = std::min(d, torusDistance({w.y, w.z, w.x}, wheel - 1.9, 1.9));
    }
    const Vec3 seat = p - saddle - Vec3{0, 4, 13};
    const double wide = mix(3.0, 8.0, smoothStep(-13, 9, seat.y));
    d = std::min(d, boxDistance({seat.x * 8 / wide, seat.y, seat.z}, {8, 13, 2.4}, 2.2) * wide / 8);
    const Vec3 q{std::abs(p.x), p.y, p.z};
    d = std::min(d, rodDistance(q, {19, -28.2, 101}, {27, -25.5, 101}, 1.7));
    const Vec3 crank = p - pedals;
    d = std::min(d, boxDistance(crank - Vec3{9.5, 10, -13}, {4.2, 4.5, 1.2}, 0.6));
    return std::min(d, boxDistance(crank - Vec3{-9.5, -10, 13}, {4.2, 4.5, 1.2}, 0.6));
  };
  const Vec3 low{-30, -90, -1}, high{30, 90, 106};
  return {propPiece(frame, {-8, -60, 24}, {8, 60, 90}, 0, 0.6, 3200),
          propPiece(metal, {-24, -84, 1}, {24, 84, 104}, 1, 0.45, 9000), propPiece(rubber, low, high, 2, 0.7, 5200)};
}

std::vector<Piece> lampPostPieces() {
  const auto iron = [](const Vec3& p) {
    const double r = std::hypot(p.x, p.y);
    double d = rodDistance(p, {0, 0, 20}, {0, 0, 262}, LAMP_POST_RADIUS);
    const double flutes = 0.22 * std::cos(10 * std::atan2(p.y, p.x)) * smoothStep(2, 4, r);
    d -= flutes;
    d = smoothMin(d, cylinderDistance(p - Vec3{0, 0, 8}, 13, 8, 2), 3);
    d = smoothMin(d, cylinderDistance(p - Vec3{0, 0, 24}, 8.5, 12, 2), 3);
    for (const double z : {62.0, 200.0, 258.0})
      d = smoothMin(d, torusDistance(p - Vec3{0, 0, z}, LAMP_POST_RADIUS, 1.4), 0.8);
    d = std::min(d, cylinderDistance(p - Vec3{0, 0, 268}, 10, 1.6, 0.8));
    const double roof = std::max((r - 17 + (p.z - 302) * 0.9) * 0.72, std::max(302 - p.z, p.z - 320));
    d = std::min(d, roof);
    const Vec3 q{std::abs(p.x), std::abs(p.y), p.z};
    return std::min(d, rodDistance(q, {6.5, 6.5, 268}, {9.5, 9.5, 303}, 0.8));
  };
  const auto glass = [](const Vec3& p) {
    const double wide = mix(6.0, 9.0, smoothStep(268, 303, p.z));
    return boxDistance({p.x * 9 / wide, p.y * 9 / wide, p.z - 286}, {9, 9, 16}, 1.0) * wide / 9;
  };
  return {propPiece(iron, {-19, -19, -0.5}, {19, 19, 322}, 0, 1.0, 5200),
          propPiece(glass, {-11, -11, 266}, {11, 11, 305}, 1, 0.8, 500)};
}

}  // namespace samples
