#include "samples/clothing/Strap.h"

#include "samples/geometry/BlobField.h"

namespace samples {
namespace {

constexpr int STEPS_BETWEEN = 5;
constexpr double ROUNDING = 0.4;

Vec3 between(const std::vector<Vec3>& path, std::size_t i, double t) {
  const Vec3& b = path[i];
  const Vec3& c = path[i + 1];
  const Vec3& a = i > 0 ? path[i - 1] : b;
  const Vec3& d = i + 2 < path.size() ? path[i + 2] : c;
  return b + (c - a + (a * 2 - b * 5 + c * 4 - d + ((b - c) * 3 + d - a) * t) * t) * (0.5 * t);
}

std::vector<Vec3> curve(const std::vector<Vec3>& path) {
  std::vector<Vec3> places;
  for (std::size_t i = 0; i + 1 < path.size(); ++i) {
    for (int step = 0; step < STEPS_BETWEEN; ++step) {
      places.push_back(between(path, i, static_cast<double>(step) / STEPS_BETWEEN));
    }
  }
  places.push_back(path.back());
  return places;
}

void evenOut(std::vector<Vec3>& places) {
  const std::vector<Vec3> before = places;
  for (std::size_t i = 1; i + 1 < places.size(); ++i) {
    places[i] = before[i] * 0.5 + (before[i - 1] + before[i + 1]) * 0.25;
  }
}

void layOnto(const Field& body, double above, std::vector<Vec3>& places) {
  for (std::size_t i = 1; i + 1 < places.size(); ++i) {
    const Field::Slope slope = body.slope(places[i], 0.5);
    places[i] = places[i] - slope.normal * (slope.distance - above);
  }
}

}  // namespace

Strap::Strap(const std::vector<Vec3>& path, const Field& body, const Size& size) : size_(size) {
  std::vector<Vec3> places = curve(path);
  for (int round = 0; round < 6; ++round) {
    layOnto(body, size.above, places);
    evenOut(places);
  }
  std::vector<Vec3> outward;
  for (const Vec3& place : places) outward.push_back(body.slope(place, 1.0).normal);
  for (int round = 0; round < 3; ++round) evenOut(outward);
  for (std::size_t i = 0; i < places.size(); ++i) {
    places_.push_back({places[i], outward[i]});
    bounds_.add(places[i], size.halfWidth + size.halfThickness);
  }
}

double Strap::distance(const Vec3& p) const {
  const double outside = bounds_.distance(p);
  if (outside > 8) return outside;
  double nearest = 1e9;
  std::size_t segment = 0;
  double along = 0;
  for (std::size_t i = 0; i + 1 < places_.size(); ++i) {
    const double t = alongLine(p, places_[i].middle, places_[i + 1].middle);
    const Vec3 away = p - mix(places_[i].middle, places_[i + 1].middle, t);
    if (dot(away, away) >= nearest) continue;
    nearest = dot(away, away);
    segment = i;
    along = t;
  }
  const Place& a = places_[segment];
  const Place& b = places_[segment + 1];
  const Vec3 away = p - mix(a.middle, b.middle, along);
  const Vec3 outward = normalized(mix(a.outward, b.outward, along));
  const double above = std::abs(dot(away, outward));
  const double aside = length(away - outward * dot(away, outward));
  const double x = aside - size_.halfWidth + ROUNDING, y = above - size_.halfThickness + ROUNDING;
  return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - ROUNDING;
}

}  // namespace samples
