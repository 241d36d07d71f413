#include "samples/props/HandProps.h"

#include "samples/geometry/BlobField.h"
#include "samples/geometry/Primitives.h"
#include "samples/props/PropPiece.h"

namespace samples {

std::vector<Piece> handbagPieces() {
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
  return {propPiece(bag, {-6, -15, -31}, {6, 15, -12}, 0, 0.5, 2600),
          propPiece(handle, {-1, -9, -14.2}, {1, 9, 1}, 0, 0.3, 900),
          propPiece(clasp, {-6.5, -2, -25}, {-4.5, 2, -22}, 1, 0.25, 260)};
}

std::vector<Piece> briefcasePieces() {
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
  return {propPiece(bag, {-6, -21, -33}, {6, 21, -4}, 0, 0.6, 2600),
          propPiece(handle, {-1.5, -8, -6.5}, {1.5, 8, 1.2}, 0, 0.3, 700),
          propPiece(clasps, {-6, -13.5, -23}, {6, 13.5, -18}, 1, 0.3, 600)};
}

std::vector<Piece> shoppingBagPieces() {
  const auto bag = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, -33};
    const double body = boxDistance(q, {6.5, 14.0, 18.0}, 0.8);
    const double crease = 0.3 * std::exp(-2 * q.y * q.y) * smoothStep(0, 3, std::abs(q.x));
    const double hollow = boxDistance(q - Vec3{0, 0, 12}, {5.9, 13.4, 18.0}, 0.6);
    return smoothMax(body + crease, -hollow, 0.1);
  };
  const auto handles = [](const Vec3& p) {
    const double drop = smoothStep(0, -15, p.z);
    const Vec3 q{std::abs(p.x) - mix(0.7, 5.6, drop), p.y, p.z};
    const double arch = std::hypot(std::hypot(q.y, q.z * 0.42 + 6.2) - 6.2, q.x) - 0.45;
    return std::max(arch, -15.6 - p.z) * 0.6;
  };
  return {propPiece(bag, {-8, -16, -52}, {8, 16, -14}, 0, 0.42, 1800),
          propPiece(handles, {-7, -8, -17}, {7, 8, 1}, 1, 0.28, 900)};
}

std::vector<Piece> bookPieces() {
  const auto cover = [](const Vec3& p) {
    const Vec3 q = p - Vec3{0, 0, 10.2};
    const double block = boxDistance(q, {1.6, 9.0, 12.0}, 0.25);
    const double pages = boxDistance(q - Vec3{0, -0.8, 0}, {1.2, 9.0, 12.6}, 0.1);
    return std::max(block, -pages);
  };
  const auto pages = [](const Vec3& p) { return boxDistance(p - Vec3{0, -0.2, 10.2}, {1.3, 8.4, 11.6}, 0.15); };
  return {propPiece(cover, {-2, -10, -3}, {2, 10, 23}, 0, 0.2, 700),
          propPiece(pages, {-2, -10, -3}, {2, 10, 23}, 1, 0.3, 200)};
}

std::vector<Piece> phonePieces() {
  const auto shell = [](const Vec3& p) { return boxDistance(p - Vec3{0, 0, 2.5}, {0.48, 3.7, 7.6}, 0.45); };
  const auto screen = [](const Vec3& p) { return boxDistance(p - Vec3{0.3, 0, 2.5}, {0.25, 3.4, 7.2}, 0.1); };
  return {propPiece(shell, {-1, -4.2, -6}, {1, 4.2, 11}, 0, 0.18, 500),
          propPiece(screen, {-1, -4.2, -6}, {1, 4.2, 11}, 1, 0.18, 120)};
}

std::vector<Piece> dumbbellPieces() {
  const auto bar = [](const Vec3& p) { return rodDistance(p, {0, -11, 0}, {0, 11, 0}, 1.35); };
  const auto weights = [](const Vec3& p) {
    const Vec3 q{p.x, p.z, std::abs(p.y)};
    const double outer = cylinderDistance(q - Vec3{0, 0, 10.2}, 5.6, 2.0, 0.8);
    const double inner = cylinderDistance(q - Vec3{0, 0, 7.2}, 4.6, 1.4, 0.6);
    return smoothMin(outer, inner, 0.3);
  };
  return {propPiece(weights, {-7, -14, -7}, {7, 14, 7}, 0, 0.35, 1600),
          propPiece(bar, {-2, -13, -2}, {2, 13, 2}, 1, 0.3, 400)};
}

std::vector<Piece> canePieces(double length) {
  const auto stick = [length](const Vec3& p) {
    const double shaft = rodDistance(p, {0, 1.5, -1}, {0, 0, 3 - length}, 1.0);
    const double crook = rodDistance(p, {0, 1.5, -0.4}, {0, -6.5, 0.2}, 1.25);
    return smoothMin(shaft, crook, 1.6);
  };
  const auto tip = [length](const Vec3& p) { return cylinderDistance(p - Vec3{0, 0, 2 - length}, 1.35, 2.0, 0.4); };
  return {propPiece(stick, {-2.5, -9, 1 - length}, {2.5, 4, 2.5}, 0, 0.32, 1100),
          propPiece(tip, {-2, -2, -length - 1}, {2, 2, 5 - length}, 1, 0.28, 200)};
}

std::vector<Piece> teddyPieces(double size) {
  auto fur = std::make_shared<BlobField>();
  auto dark = std::make_shared<BlobField>();
  const auto at = [size](double x, double y, double z) { return Vec3{x, y, z} * size; };
  // Its left arm is up in the child's hand, the rest hangs below it.
  fur->addCone(at(0, 0, 1.0), 1.6 * size, at(-3.4, -0.4, -7.5), 2.1 * size, 0);
  fur->addEllipsoid(Frame{}.at(at(-6.0, 0, -12.5)), Vec3{5.4, 4.6, 6.6} * size, 1.5 * size);
  fur->addSphere(at(-7.6, -0.6, -3.6), 4.6 * size, 1.0 * size);
  fur->addSphere(at(-7.8, -4.4, -4.6), 2.1 * size, 0.8 * size);
  for (const double side : {-1.0, 1.0}) fur->addSphere(at(-7.8 + side * 3.6, 0.2, 0.1), 1.7 * size, 0.5 * size);
  fur->addCone(at(-9.6, -0.6, -9.5), 2.1 * size, at(-12.2, -2.0, -15.0), 1.8 * size, 0.8 * size);
  fur->addCone(at(-3.6, -1.2, -17.0), 2.5 * size, at(-2.4, -3.4, -22.5), 2.4 * size, 1.0 * size);
  fur->addCone(at(-8.4, -1.2, -17.0), 2.5 * size, at(-9.8, -3.4, -22.3), 2.4 * size, 1.0 * size);
  dark->addSphere(at(-7.8, -6.3, -4.2), 0.75 * size, 0);
  for (const double side : {-1.0, 1.0}) dark->addSphere(at(-7.7 + side * 1.7, -4.7, -2.5), 0.55 * size, 0);
  const Box low = fur->bounds(), small = dark->bounds();
  return {propPiece([fur](const Vec3& p) { return fur->distance(p); }, low.low, low.high, 0, 0.4, 2600),
          propPiece([dark](const Vec3& p) { return dark->distance(p); }, small.low, small.high, 1, 0.2, 240)};
}

std::vector<Piece> balloonPieces() {
  const auto skin = [](const Vec3& p) {
    const Vec3 q = p - Vec3{-30, 2, 92};
    const double narrow = 1 + 0.16 * smoothStep(4, -18, q.z);
    const double body = ellipsoidDistance({q.x * narrow, q.y * narrow, q.z}, {13.5, 13.5, 16.5});
    return smoothMin(body, length(q - Vec3{0.6, 0, -17.4}) - 1.1, 1.6);
  };
  const auto string = [](const Vec3& p) {
    const double t = std::clamp(p.z / 75, 0.0, 1.0);
    const Vec3 middle{-30 * t * (0.55 + 0.45 * t), 2 * t, p.z};
    return std::max((length(p - middle) - 0.32) * 0.9, std::max(p.z - 76, -4 - p.z));
  };
  return {propPiece(skin, {-46, -14, 70}, {-14, 18, 112}, 0, 0.7, 2200),
          propPiece(string, {-32, -1, -5}, {1, 4, 77}, 1, 0.3, 700)};
}

}  // namespace samples
