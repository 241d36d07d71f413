#pragma once

#include <point3.h>

#include <cstdint>

namespace host {

/// Well spread pairs of numbers from 0 to 1 for one pixel; the same on every run and machine. Neighbouring pixels
/// continue each other's patterns, so that what error is left is fine grain, not blotches.
class SamplePattern {
 public:
  struct Pair {
    float x;
    float y;
  };

  /// What a pair is for; each use has a pattern of its own.
  enum Use : std::uint32_t { PIXEL, SUN, SKY, OPACITY };

  SamplePattern(int x, int y);

  /// Pair `sample` of the `count` that this pixel draws for that use.
  Pair pair(Use use, std::uint32_t sample, std::uint32_t count) const;

 private:
  std::uint32_t place_;
};

/// A direction around a unit normal, likelier the closer to it (by the cosine); unit length.
Point3 cosineDirection(const Point3& normal, const SamplePattern::Pair& pair);
/// A direction within a cone around a unit axis, whose edge has that sine; unit length.
Point3 coneDirection(const Point3& axis, float sine, const SamplePattern::Pair& pair);

}  // namespace host
