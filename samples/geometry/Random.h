#pragma once

#include <cstdint>

namespace samples {

/// The same numbers on every machine for the same seed, unlike the standard library's distributions.
class Random {
 public:
  explicit Random(std::uint64_t seed) : state_(seed * 0x9E3779B97F4A7C15ULL + 0x632BE59BD9B4E019ULL) {}

  /// From 0 up to, not including, 1.
  double next() { return static_cast<double>(bits() >> 11U) * (1.0 / 9007199254740992.0); }
  double between(double low, double high) { return low + (high - low) * next(); }

 private:
  std::uint64_t bits() {
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
    return z ^ (z >> 31U);
  }

  std::uint64_t state_;
};

}  // namespace samples
