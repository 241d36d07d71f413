#include "samples/props/PropPiece.h"

#include "samples/geometry/BoxUnwrap.h"
namespace samples {

Piece propPiece(FunctionField::Function distance, const Vec3& low, const Vec3& high, std::uint16_t materialId,
                double cell, std::size_t triangles) {
  Box box;
  box.add(low);
  box.add(high);
  MeshDetail detail;
  detail.cell = cell;
  detail.triangles = triangles;
  // Smooth normals across large flat triangles would look dented.
  detail.evenness = 3e-3;
  return {makeField(std::move(distance), box), std::make_shared<BoxUnwrap>(), materialId, detail};
}

}  // namespace samples
