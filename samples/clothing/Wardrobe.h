#pragma once

#include <memory>
#include <vector>

#include "samples/body/ImplicitBody.h"
#include "samples/geometry/Piece.h"

namespace samples {

/// What can be worn, with its materials in the order of their ids.
enum class Outfit {
  SummerDress,     ///< dress
  Casual,          ///< jumper, trousers
  Suit,            ///< cloth, shirt, tie, buttons
  Hoodie,          ///< hoodie, trousers
  Coat,            ///< coat, trousers, buttons
  Business,        ///< blazer and skirt, blouse, buttons
  BlouseAndSkirt,  ///< blouse, skirt
  Shirt,           ///< shirt, trousers, belt and buttons
  TeeAndTrousers,  ///< T-shirt, trousers
  TeeAndShorts,    ///< T-shirt, shorts
  Sports,          ///< shirt, leggings
  Cardigan,        ///< cardigan, trousers, shirt, buttons
  Parka            ///< jacket, trousers, zip
};

std::vector<Piece> outfitPieces(const std::shared_ptr<const ImplicitBody>& body, Outfit outfit);

}  // namespace samples
