#pragma once

#include <vector>

#include "samples/geometry/Piece.h"

namespace samples {

// Things to carry. The origin is where the hand closes around them; bags and the like hang down from there.

std::vector<Piece> handbagPieces();
std::vector<Piece> briefcasePieces();
std::vector<Piece> shoppingBagPieces();
/// In the frame of the grip: the lower edge rests on the fingers.
std::vector<Piece> bookPieces();
/// In the frame of the grip.
std::vector<Piece> phonePieces();
/// In the frame of the grip.
std::vector<Piece> dumbbellPieces();
/// Its tip is `length` centimetres below the hand.
std::vector<Piece> canePieces(double length);
/// Held by one arm; `size` 1 is 30 centimetres tall.
std::vector<Piece> teddyPieces(double size);
std::vector<Piece> balloonPieces();

}  // namespace samples
