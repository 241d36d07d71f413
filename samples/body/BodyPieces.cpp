#include "samples/body/BodyPieces.h"

#include "samples/body/SkinUnwrap.h"

namespace samples {

std::vector<Piece> bodyPieces(const std::shared_ptr<const ImplicitBody>& body) {
  MeshDetail skin;
  skin.cell = 0.45;
  skin.hollow = false;
  skin.triangles = 14000;
  const Vec3 face = body->headShape().place(0, 0, 0.45);
  const Vec3 left = body->skeleton().arm(Side::Left).end.origin;
  const Vec3 right = body->skeleton().arm(Side::Right).end.origin;
  skin.weight = [=](const Vec3& p) {
    if (length(p - face) < 14) return 8.0;
    return std::min(length(p - left), length(p - right)) < 22 ? 4.0 : 1.0;
  };
  MeshDetail hair;
  hair.cell = 0.45;
  hair.triangles = 2600;
  return {{body, std::make_shared<SkinUnwrap>(body), 0, skin},
          {body->headShape().hair(), std::make_shared<SkinUnwrap>(body), 1, hair}};
}

}  // namespace samples
