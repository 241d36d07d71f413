#include "host/view/SamplePattern.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr float TWO_PI = 6.28318531F;

std::uint32_t mixed(std::uint32_t x) {
  x ^= x >> 16U;
  x *= 0x7FEB352DU;
  x ^= x >> 15U;
  x *= 0x846CA68BU;
  return x ^ (x >> 16U);
}

float fractionOf(std::uint32_t x) { return static_cast<float>(x >> 8U) * (1.0F / 16777216.0F); }

/// The pixel's place on a curve that fills square after square, each square's four quarters in an order of chance: a
/// regular order would show as a weave.
std::uint32_t placeOnCurve(std::uint32_t x, std::uint32_t y) {
  constexpr std::uint32_t orders[] = {0x1B, 0x1E, 0x27, 0x2D, 0x36, 0x39, 0x4B, 0x4E, 0x63, 0x6C, 0x72, 0x78,
                                      0x87, 0x8D, 0x93, 0x9C, 0xB1, 0xB4, 0xC6, 0xC9, 0xD2, 0xD8, 0xE1, 0xE4};
  std::uint32_t place = 0;
  for (std::uint32_t level = 14; level-- > 0;) {
    const std::uint32_t quarter = (x >> level & 1U) | (y >> level & 1U) << 1U;
    const std::uint32_t order = orders[mixed(place + (level << 28U)) % 24U];
    place = place << 2U | (order >> (2U * quarter) & 3U);
  }
  return place;
}

/// Two unit vectors across a unit axis.
struct Across {
  Point3 first;
  Point3 second;
};

Across across(const Point3& axis) {
  const float sign = axis.z < 0.0F ? -1.0F : 1.0F;
  const float a = -1.0F / (sign + axis.z);
  const float b = axis.x * axis.y * a;
  return {{1.0F + sign * axis.x * axis.x * a, sign * b, -sign * axis.x}, {b, sign + axis.y * axis.y * a, -axis.y}};
}

/// Evenly over the unit disk, keeping neighbours together so that a well spread pattern stays one.
SamplePattern::Pair onDisk(const SamplePattern::Pair& pair) {
  const float x = 2.0F * pair.x - 1.0F;
  const float y = 2.0F * pair.y - 1.0F;
  if (x == 0.0F && y == 0.0F) return {0.0F, 0.0F};
  const bool wide = std::abs(x) > std::abs(y);
  const float radius = wide ? x : y;
  const float angle = wide ? TWO_PI / 8.0F * (y / x) : TWO_PI / 4.0F - TWO_PI / 8.0F * (x / y);
  return {radius * std::cos(angle), radius * std::sin(angle)};
}

}  // namespace

SamplePattern::SamplePattern(int x, int y)
    : place_(placeOnCurve(static_cast<std::uint32_t>(x), static_cast<std::uint32_t>(y))) {}

SamplePattern::Pair SamplePattern::pair(Use use, std::uint32_t sample, std::uint32_t count) const {
  // One lattice of the plastic number runs through the whole picture: any stretch of it is well spread, so every
  // pixel's is, and every block's of neighbours. In 32-bit fractions, so that every machine rounds alike.
  const std::uint32_t index = place_ * count + sample;
  const std::uint32_t shift = mixed(use + 1U);
  return {fractionOf(shift + index * 0xC13FA9A9U), fractionOf(mixed(shift) + index * 0x91E10DA5U)};
}

Point3 cosineDirection(const Point3& normal, const SamplePattern::Pair& pair) {
  const SamplePattern::Pair disk = onDisk(pair);
  const Across axes = across(normal);
  const float height = std::sqrt(std::max(0.0F, 1.0F - disk.x * disk.x - disk.y * disk.y));
  return axes.first * disk.x + axes.second * disk.y + normal * height;
}

Point3 coneDirection(const Point3& axis, float sine, const SamplePattern::Pair& pair) {
  const SamplePattern::Pair disk = onDisk(pair);
  const Across axes = across(axis);
  const float x = disk.x * sine;
  const float y = disk.y * sine;
  return axes.first * x + axes.second * y + axis * std::sqrt(1.0F - x * x - y * y);
}

}  // namespace host
