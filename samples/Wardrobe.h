#pragma once

#include <memory>
#include <vector>

#include "samples/ImplicitBody.h"
#include "samples/Piece.h"

namespace samples {

enum class Outfit { SummerDress, Casual, Suit, Hoodie, Coat };
enum class Footwear { Sneakers, Ballerinas, Oxfords };

/// Skin with material id 0, hair with 1.
std::vector<Piece> bodyPieces(const std::shared_ptr<const ImplicitBody>& body);

/// The dress has one material; casual clothes upper part and trousers; a suit cloth, shirt and tie.
std::vector<Piece> outfitPieces(const std::shared_ptr<const ImplicitBody>& body, Outfit outfit);

/// Both shoes: upper with material id 0, sole with 1.
std::vector<Piece> shoePieces(const std::shared_ptr<const ImplicitBody>& body, Footwear shoes);

}  // namespace samples
