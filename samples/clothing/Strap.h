#pragma once

#include <vector>

#include "samples/geometry/Field.h"

namespace samples {

/// A band of cloth or leather that lies on a body.
class Strap {
 public:
  struct Size {
    double halfWidth = 1.5;
    double halfThickness = 0.45;
    double above = 2;  ///< from the body to the middle of the band, which clothes lie below
  };

  /// `path` is where the band runs, about: it is laid onto the body and evened out, but for its ends. In centimetres;
  /// at least two places.
  Strap(const std::vector<Vec3>& path, const Field& body, const Size& size);

  double distance(const Vec3& point) const;
  Box bounds() const { return bounds_; }

 private:
  struct Place {
    Vec3 middle;
    Vec3 outward;
  };

  Size size_;
  std::vector<Place> places_;
  Box bounds_;
};

}  // namespace samples
