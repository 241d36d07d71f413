#include "samples/props/HeadProps.h"

#include "samples/geometry/BlobField.h"
#include "samples/geometry/Primitives.h"
#include "samples/props/PropPiece.h"

namespace samples {
namespace {

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
  return {propPiece(crown, {-r, -r, 0.55 * h}, {r, r, 1.4 * h}, 0, 0.42, 5000),
          propPiece(ribbon, {-0.6 * h, -0.6 * h, 0.6 * h}, {0.6 * h, 0.6 * h, 1.0 * h}, 1, 0.42, 900)};
}

}  // namespace

std::vector<Piece> sunHatPieces(double h) { return hat(h, true); }
std::vector<Piece> fedoraPieces(double h) { return hat(h, false); }

std::vector<Piece> flatCapPieces(double h) {
  const auto cap = [h](const Vec3& p) {
    const Vec3 q = Frame::rotated({7, 0, 0}, Vec3{0, 0.01, 0.835} * h).local(p);
    const double crown = ellipsoidDistance(q - Vec3{0, 0, 0.02} * h, Vec3{0.405, 0.500, 0.235} * h);
    const double flat = smoothMax(crown, -(q.z + 0.075 * h), 0.03 * h);
    const double peak = ellipsoidDistance(q - Vec3{0, -0.40, -0.055} * h, Vec3{0.270, 0.200, 0.035} * h);
    return smoothMin(flat, peak, 0.03 * h);
  };
  return {propPiece(cap, Vec3{-0.5, -0.8, 0.55} * h, Vec3{0.5, 0.65, 1.2} * h, 0, 0.42, 2600)};
}

std::vector<Piece> baseballCapPieces(double h) {
  const Frame seat = Frame::rotated({-4, 0, 0}, Vec3{0, 0.055, 0.700} * h);
  const auto crown = [=](const Vec3& p) {
    const Vec3 q = seat.local(p);
    const double dome = ellipsoidDistance(q, Vec3{0.378, 0.452, 0.405} * h);
    const double panels = 0.10 * std::exp(-std::pow(std::sin(3 * std::atan2(q.x, q.y)) * 6, 2));
    return smoothMax(dome + panels, -q.z, 0.02 * h);
  };
  const auto peak = [=](const Vec3& p) {
    const Vec3 q = seat.local(p);
    const double bow = q.z - 0.035 * h + 0.9 * q.x * q.x / h - 0.10 * (q.y + 0.4 * h);
    const double outline = std::hypot(q.x / 0.31, (q.y + 0.36 * h) / 0.42) - h;
    const double disc = smoothMax(outline * 0.31, std::abs(bow) - 0.28, 0.2);
    const double button = length(q - Vec3{0, 0, 0.408} * h) - 0.045 * h;
    return std::min(std::max(disc, q.y + 0.20 * h), button) * 0.8;
  };
  const Vec3 low = Vec3{-0.5, -0.95, 0.6} * h;
  const Vec3 high = Vec3{0.5, 0.6, 1.25} * h;
  return {propPiece(crown, low, high, 0, 0.42, 2400), propPiece(peak, low, high, 1, 0.3, 1200)};
}

std::vector<Piece> glassesPieces(double h) {
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
  return {propPiece(rim, low, high, 0, 0.16, 3000), propPiece(lens, low, {high.x, -0.30 * h, high.z}, 1, 0.16, 500)};
}

std::vector<Piece> headphonesPieces(double h) {
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
  return {propPiece(band, low, high, 0, 0.3, 1400), propPiece(cups, low, high, 0, 0.35, 1200),
          propPiece(pads, low, high, 1, 0.35, 1200)};
}

}  // namespace samples
