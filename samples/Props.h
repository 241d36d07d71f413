#pragma once

#include <vector>

#include "samples/ImplicitBody.h"
#include "samples/Piece.h"

namespace samples {

/// Things to carry, to wear on the head and to sit on, each in its own space; `Placements` says where a body has it.
enum class Prop { Handbag, Briefcase, SunHat, Fedora, Glasses, Headphones, Stool, Suitcase };

/// `body` gives the measures that a prop must fit: the head, the height of the seat.
std::vector<Piece> propPieces(Prop prop, const ImplicitBody& body);

/// Where the body, in its pose, has the prop.
Frame propPlacement(Prop prop, const ImplicitBody& body);

/// The height at which the seated body needs its seat.
double seatHeight(const ImplicitBody& seated);

}  // namespace samples
