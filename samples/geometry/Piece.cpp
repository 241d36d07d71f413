#include "samples/geometry/Piece.h"

#include <algorithm>

namespace samples {

host::Mesh meshPieces(const std::vector<Piece>& pieces, double coarseness) {
  host::Mesh mesh;
  for (const Piece& piece : pieces) {
    MeshDetail detail = piece.detail;
    detail.cell *= coarseness;
    // Fewer than some hundred triangles no longer close several small solids.
    const auto coarse = static_cast<std::size_t>(static_cast<double>(detail.triangles) / (coarseness * coarseness));
    detail.triangles = std::max(coarse, std::min<std::size_t>(detail.triangles, 240));
    Surface surface = meshField(*piece.field, detail);
    // What is thinner than a coarse cell may slip through between its corners.
    for (int finer = 0; finer < 4 && surface.triangles.empty(); ++finer) {
      detail.cell *= 0.5;
      surface = meshField(*piece.field, detail);
    }
    appendSurface(mesh, surface, *piece.field, 0.5 * detail.cell, *piece.unwrap, piece.materialId);
  }
  host::completeMesh(mesh);
  return mesh;
}

}  // namespace samples
