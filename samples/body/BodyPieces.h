#pragma once

#include <memory>
#include <vector>

#include "samples/body/ImplicitBody.h"
#include "samples/geometry/Piece.h"

namespace samples {

/// Skin with material id 0, hair with 1.
std::vector<Piece> bodyPieces(const std::shared_ptr<const ImplicitBody>& body);

}  // namespace samples
