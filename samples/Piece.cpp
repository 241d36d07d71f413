#include "samples/Piece.h"

namespace samples {

host::Mesh meshPieces(const std::vector<Piece>& pieces, double coarseness) {
  host::Mesh mesh;
  for (const Piece& piece : pieces) {
    MeshDetail detail = piece.detail;
    detail.cell *= coarseness;
    detail.triangles = static_cast<std::size_t>(static_cast<double>(detail.triangles) / (coarseness * coarseness));
    appendSurface(mesh, meshField(*piece.field, detail), *piece.field, *piece.unwrap, piece.materialId);
  }
  host::completeMesh(mesh);
  return mesh;
}

}  // namespace samples
