#pragma once

#include <vector>

#include "samples/body/ImplicitBody.h"
#include "samples/geometry/Piece.h"

namespace samples {

/// Things that matrix rows place: to carry, to wear on the head, to sit on, and what stands around.
enum class Prop {
  Handbag,
  Briefcase,
  ShoppingBag,
  Book,
  Phone,
  Dumbbell,
  Cane,
  Teddy,
  Balloon,
  SunHat,
  Fedora,
  FlatCap,
  BaseballCap,
  Glasses,
  Headphones,
  Stool,
  Suitcase,
  Bicycle,
  Bench,
  LampPost,
  Umbrella  ///< never made
};

/// `body` gives the measures that a prop must fit: the head, the height of the seat, of the hand.
std::vector<Piece> propPieces(Prop prop, const ImplicitBody& body);

/// Where the body, in its pose, has the prop.
Frame propPlacement(Prop prop, const ImplicitBody& body);

/// The height at which the seated body needs its seat.
double seatHeight(const ImplicitBody& seated);

}  // namespace samples
