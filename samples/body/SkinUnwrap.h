#pragma once

#include "samples/body/ClothUnwrap.h"

namespace samples {

/// The body: the head fills the upper half of the picture, the rest shares the lower half.
class SkinUnwrap : public Unwrap {
 public:
  explicit SkinUnwrap(std::shared_ptr<const ImplicitBody> body);
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;
  host::TexCoord coordinates(int panel, const Wrapped& wrapped) const override;

 private:
  std::shared_ptr<const ImplicitBody> body_;
  ClothUnwrap limbs_;
};

}  // namespace samples
