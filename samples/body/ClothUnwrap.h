#pragma once

#include <memory>

#include "samples/body/ImplicitBody.h"
#include "samples/body/Lap.h"
#include "samples/geometry/Unwrap.h"

namespace samples {

/// Shirts, trousers, shoes: trunk (or skirt), two sleeves, two legs.
class ClothUnwrap : public Unwrap {
 public:
  enum class Kind { Top, Trousers, Dress };
  ClothUnwrap(std::shared_ptr<const ImplicitBody> body, Kind kind);
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;

 private:
  std::shared_ptr<const ImplicitBody> body_;
  Lap lap_;
  Kind kind_;
};

}  // namespace samples
