#pragma once

#include <algorithm>
#include <cmath>

namespace samples {

constexpr double PI = 3.14159265358979323846;

constexpr double radians(double degrees) { return degrees * PI / 180.0; }

/// A point or a direction; centimetres, Z up, unless said otherwise.
struct Vec3 {
  double x = 0;
  double y = 0;
  double z = 0;
};

constexpr Vec3 operator+(const Vec3& a, const Vec3& b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
constexpr Vec3 operator-(const Vec3& a, const Vec3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
constexpr Vec3 operator-(const Vec3& a) { return {-a.x, -a.y, -a.z}; }
constexpr Vec3 operator*(const Vec3& a, double s) { return {a.x * s, a.y * s, a.z * s}; }
constexpr Vec3 operator*(double s, const Vec3& a) { return a * s; }
constexpr double dot(const Vec3& a, const Vec3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
constexpr Vec3 cross(const Vec3& a, const Vec3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double length(const Vec3& a) { return std::sqrt(dot(a, a)); }

/// A vector without length gives the up direction, so that a normal is always a normal.
inline Vec3 normalized(const Vec3& a) {
  const double l = length(a);
  return l > 1e-12 ? a * (1.0 / l) : Vec3{0, 0, 1};
}

constexpr double mix(double a, double b, double t) { return a + (b - a) * t; }
constexpr Vec3 mix(const Vec3& a, const Vec3& b, double t) { return a + (b - a) * t; }

/// 0 below `low`, 1 above `high`, a smooth step between.
inline double smoothStep(double low, double high, double value) {
  const double t = std::clamp((value - low) / (high - low), 0.0, 1.0);
  return t * t * (3.0 - 2.0 * t);
}

/// The smaller of two distances, rounded where they are nearer to each other than `k`.
inline double smoothMin(double a, double b, double k) {
  if (k <= 0) return std::min(a, b);
  const double h = std::max(k - std::abs(a - b), 0.0) / k;
  return std::min(a, b) - h * h * k * 0.25;
}
inline double smoothMax(double a, double b, double k) { return -smoothMin(-a, -b, k); }

}  // namespace samples
