#pragma once

#include <memory>
#include <vector>

#include "samples/body/ImplicitBody.h"
#include "samples/geometry/Piece.h"

namespace samples {

/// What follows the body so closely that each pose needs its own mesh.
enum class Worn { Sneakers, Ballerinas, Oxfords, Boots, Backpack, ShoulderBag, Scarf };

/// The larger part with material id 0, sole, straps and metal with 1.
std::vector<Piece> wornPieces(const std::shared_ptr<const ImplicitBody>& body, Worn worn);

}  // namespace samples
