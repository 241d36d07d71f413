#pragma once

#include "host/meshes/Mesh.h"
#include "samples/Field.h"
#include "samples/ImplicitBody.h"
#include "samples/Lap.h"
#include "samples/Surface.h"

namespace samples {

/// One pattern tile is so many centimetres wide and high.
constexpr double kTile = 10.0;

/// Where a place lies on a wrapped cloth: `turn` is the angle around the limb in turns, -0.5 to 0.5, 0 opposite the
/// seam.
struct Wrapped {
  double turn = 0;
  double length = 0;     ///< centimetres along the limb
  double girth = kTile;  ///< centimetres around it, whole tiles; 0 for a flat chart, where `turn` counts centimetres
};

/// How a surface is laid flat: seams run where a tailor has them.
class Unwrap {
 public:
  virtual ~Unwrap() = default;
  /// The panel that a place belongs to.
  virtual int panel(const Vec3& place, const Vec3& normal) const = 0;
  virtual Wrapped wrap(int panel, const Vec3& place) const = 0;
  virtual host::TexCoord coordinates(int panel, const Wrapped& wrapped) const;
};

/// Shirts, trousers, shoes: trunk (or skirt), two sleeves, two legs.
class ClothUnwrap : public Unwrap {
 public:
  enum class Kind { Top, Trousers, Dress };
  ClothUnwrap(std::shared_ptr<const ImplicitBody> body, Kind kind);
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;

 private:
  std::shared_ptr<const ImplicitBody> m_body;
  Lap m_lap;
  Kind m_kind;
};

/// The body: the head fills the upper half of the picture, the rest shares the lower half.
class SkinUnwrap : public Unwrap {
 public:
  explicit SkinUnwrap(std::shared_ptr<const ImplicitBody> body);
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;
  host::TexCoord coordinates(int panel, const Wrapped& wrapped) const override;

 private:
  std::shared_ptr<const ImplicitBody> m_body;
  ClothUnwrap m_limbs;
};

/// Props: laid flat from six sides.
class BoxUnwrap : public Unwrap {
 public:
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;
};

/// Appends the surface with the field's smooth normals, to which shapes smaller than `blur` centimetres do not matter;
/// vertices are doubled along seams only.
void appendSurface(host::Mesh& mesh, const Surface& surface, const Field& field, double blur, const Unwrap& unwrap,
                   std::uint16_t materialId);

}  // namespace samples
