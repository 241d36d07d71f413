#pragma once

#include <memory>

#include "host/meshes/Mesh.h"
#include "samples/geometry/Mesher.h"
#include "samples/geometry/Unwrap.h"

namespace samples {

/// A part of a mesh with one material.
struct Piece {
  FieldPtr field;
  std::shared_ptr<const Unwrap> unwrap;
  std::uint16_t materialId = 0;
  MeshDetail detail;
};

/// The pieces as one finished mesh. `coarseness` 1 is the quality meant for people, 2 twice as coarse and much quicker.
host::Mesh meshPieces(const std::vector<Piece>& pieces, double coarseness);

}  // namespace samples
