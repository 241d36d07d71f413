#pragma once

#include <vector>

#include "samples/geometry/Piece.h"

namespace samples {

// Things that stand on the ground, the origin below their middle.

/// The height of the handle's bar, which is 9 centimetres behind the middle.
constexpr double SUITCASE_HANDLE = 94;
/// The radius of the post between knees and head.
constexpr double LAMP_POST_RADIUS = 5;

/// `height` is that of the seat.
std::vector<Piece> stoolPieces(double height);
std::vector<Piece> suitcasePieces();
std::vector<Piece> benchPieces();
std::vector<Piece> bicyclePieces();
std::vector<Piece> lampPostPieces();

}  // namespace samples
