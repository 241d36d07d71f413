#pragma once

#include <functional>

#include "samples/geometry/Surface.h"

namespace samples {

struct Simplification {
  std::size_t triangles = 20000;  ///< how many are to be left, about
  double evenness = 1e-4;         ///< how much triangles are kept of one size, flat parts or not
  /// How much more a change at a place counts; null counts all alike.
  std::function<double(const Vec3&)> weight;
};

/// Collapses edges, those first that change the shape least. A closed surface stays closed.
void simplify(Surface& surface, const Simplification& how);

}  // namespace samples
