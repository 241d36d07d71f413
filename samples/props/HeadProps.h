#pragma once

#include <vector>

#include "samples/geometry/Piece.h"

namespace samples {

// Things for the head, in its space: the chin at the origin, facing -Y; made for a head of the height `h` in
// centimetres.

std::vector<Piece> sunHatPieces(double h);
std::vector<Piece> fedoraPieces(double h);
std::vector<Piece> flatCapPieces(double h);
std::vector<Piece> baseballCapPieces(double h);
std::vector<Piece> glassesPieces(double h);
std::vector<Piece> headphonesPieces(double h);

}  // namespace samples
