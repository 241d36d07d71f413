#pragma once

#include <vector>

#include "samples/geometry/Piece.h"

namespace samples {

/// A part of a prop: the surface of `distance` between two corners, laid flat from six sides.
Piece propPiece(FunctionField::Function distance, const Vec3& low, const Vec3& high, std::uint16_t materialId,
                double cell, std::size_t triangles);

}  // namespace samples
