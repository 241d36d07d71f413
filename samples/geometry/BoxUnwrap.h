#pragma once

#include "samples/geometry/Unwrap.h"

namespace samples {

/// Props: laid flat from six sides.
class BoxUnwrap : public Unwrap {
 public:
  int panel(const Vec3& place, const Vec3& normal) const override;
  Wrapped wrap(int panel, const Vec3& place) const override;
};

}  // namespace samples
