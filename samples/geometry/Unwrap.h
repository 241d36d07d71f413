#pragma once

#include "host/meshes/Mesh.h"
#include "samples/geometry/Field.h"
#include "samples/geometry/Surface.h"

namespace samples {

/// One pattern tile is so many centimetres wide and high.
constexpr double TILE = 10.0;

/// Where a place lies on a wrapped cloth: `turn` is the angle around the limb in turns, -0.5 to 0.5, 0 opposite the
/// seam.
struct Wrapped {
  double turn = 0;
  double length = 0;    ///< centimetres along the limb
  double girth = TILE;  ///< centimetres around it, whole tiles; 0 for a flat chart, where `turn` counts centimetres
};

/// Wrapped around an axis that `along` runs along; opposite the seam x is 0 and y positive.
Wrapped wrapAround(double x, double y, double along, double girth);

/// How a surface is laid flat: seams run where a tailor has them.
class Unwrap {
 public:
  virtual ~Unwrap() = default;
  /// The panel that a place belongs to.
  virtual int panel(const Vec3& place, const Vec3& normal) const = 0;
  virtual Wrapped wrap(int panel, const Vec3& place) const = 0;
  virtual host::TexCoord coordinates(int panel, const Wrapped& wrapped) const;
};

/// Appends the surface with the field's smooth normals, to which shapes smaller than `blur` centimetres do not matter;
/// vertices are doubled along seams only.
void appendSurface(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap,
                   std::uint16_t materialId);

}  // namespace samples
