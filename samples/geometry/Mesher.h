#pragma once

#include "samples/geometry/Field.h"
#include "samples/geometry/Surface.h"

namespace samples {

/// How finely fields become surfaces.
struct MeshDetail {
  double cell = 0.5;              ///< centimetres between samples of the field
  bool hollow = true;             ///< whether there may be thin walls, which the samples must not miss
  std::size_t triangles = 20000;  ///< at most, about
  double evenness = 1e-4;         ///< see `Simplification`
  /// How much more a place deserves triangles than others; null is 1 everywhere.
  std::function<double(const Vec3&)> weight;
};

/// The zero surface of the field: closed, every edge between exactly two triangles, vertices on the field's surface.
Surface meshField(const Field& field, const MeshDetail& detail);

}  // namespace samples
