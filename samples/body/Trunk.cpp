#include "samples/body/Trunk.h"

namespace samples {
namespace {

// Parts of the stature: height, half width, depth to the front, depth to the back.
constexpr double MAN[][4] = {
    {0.462, 0.060, 0.045, 0.050}, {0.490, 0.091, 0.060, 0.068}, {0.520, 0.097, 0.064, 0.068},
    {0.555, 0.093, 0.064, 0.058}, {0.590, 0.085, 0.061, 0.052}, {0.620, 0.082, 0.060, 0.051},
    {0.655, 0.086, 0.062, 0.055}, {0.700, 0.096, 0.068, 0.062}, {0.740, 0.104, 0.070, 0.067},
    {0.775, 0.104, 0.062, 0.066}, {0.803, 0.092, 0.047, 0.058}, {0.825, 0.062, 0.034, 0.046},
    {0.842, 0.036, 0.028, 0.036},
};
constexpr double WOMAN[][4] = {
    {0.462, 0.066, 0.045, 0.052}, {0.490, 0.095, 0.060, 0.072}, {0.520, 0.099, 0.063, 0.072},
    {0.555, 0.091, 0.062, 0.060}, {0.590, 0.080, 0.056, 0.050}, {0.620, 0.073, 0.053, 0.048},
    {0.655, 0.076, 0.054, 0.051}, {0.700, 0.085, 0.060, 0.057}, {0.740, 0.090, 0.062, 0.060},
    {0.775, 0.089, 0.054, 0.059}, {0.803, 0.080, 0.041, 0.052}, {0.825, 0.054, 0.030, 0.042},
    {0.842, 0.031, 0.025, 0.033},
};

double spline(double a, double b, double c, double d, double t) {
  return b + 0.5 * t * (c - a + t * (2 * a - 5 * b + 4 * c - d + t * (3 * (b - c) + d - a)));
}

double ellipseDistance(double x, double y, double a, double b) {
  const double k0 = std::hypot(x / a, y / b);
  const double k1 = std::hypot(x / (a * a), y / (b * b));
  return k1 > 1e-9 ? k0 * (k0 - 1.0) / k1 : -std::min(a, b);
}

}  // namespace

Trunk::Trunk(const Skeleton& skeleton) : skeleton_(skeleton) {
  const Proportions& body = skeleton.proportions();
  const double s = skeleton.stature();
  for (std::size_t i = 0; i < std::size(MAN); ++i) {
    const auto part = [&](int column) { return s * body.between(MAN[i][column], WOMAN[i][column]); };
    // A belly grows around the waist and to the front.
    const double waist = std::exp(-std::pow((part(0) / s - 0.60) / 0.06, 2)) * body.fullness;
    const double chest = std::exp(-std::pow((part(0) / s - 0.75) / 0.06, 2)) * (body.muscle - 0.5);
    const double belly = std::exp(-std::pow((part(0) / s - 0.585) / 0.045, 2)) * body.belly;
    const double straight = std::exp(-std::pow((part(0) / s - 0.635) / 0.05, 2)) * body.childhood() * 0.007 * s;
    const double wide = mix(1.0, body.shoulders, smoothStep(0.64, 0.76, part(0) / s));
    sections_.push_back({part(0), (part(1) + 2.2 * waist + 1.2 * chest + straight) * wide + 0.8 * belly,
                         part(2) + straight / 2 + 3.2 * waist + 1.0 * chest + 5.0 * belly,
                         part(3) + 0.8 * waist + 0.8 * chest});
  }
  for (const Frame* frame : {&skeleton.pelvis(), &skeleton.spine(), &skeleton.chest(), &skeleton.neck()}) {
    bounds_.add(frame->origin, 0.13 * s);
  }
}

Trunk::Section Trunk::sectionAt(double z) const {
  const auto last = sections_.size() - 1;
  std::size_t i = 0;
  while (i + 2 < sections_.size() && sections_[i + 1].z < z) ++i;
  const Section& a = sections_[i > 0 ? i - 1 : 0];
  const Section& b = sections_[i];
  const Section& c = sections_[i + 1];
  const Section& d = sections_[std::min(i + 2, last)];
  const double t = std::clamp((z - b.z) / (c.z - b.z), 0.0, 1.0);
  return {z, spline(a.halfWidth, b.halfWidth, c.halfWidth, d.halfWidth, t),
          spline(a.front, b.front, c.front, d.front, t), spline(a.back, b.back, c.back, d.back, t)};
}

double Trunk::distance(const Vec3& point) const {
  const double outside = bounds_.distance(point);
  if (outside > 12) return outside;
  return restDistance(skeleton_.toRest(point));
}

double Trunk::restDistance(const Vec3& rest) const {
  const Section section = sectionAt(rest.z);
  const double depth = rest.y < 0 ? section.front : section.back;
  const double around = ellipseDistance(rest.x, rest.y, section.halfWidth, depth);
  const double above = std::max(rest.z - sections_.back().z, sections_.front().z - rest.z);
  return smoothMax(around, above, 2.0);
}

}  // namespace samples
