#pragma once

#include <vector>

#include "samples/body/Skeleton.h"
#include "samples/geometry/Field.h"

namespace samples {

/// The trunk from crotch to the base of the neck: cross-sections of the upright body, bent with the spine.
class Trunk : public Field {
 public:
  explicit Trunk(const Skeleton& skeleton);

  double distance(const Vec3& point) const override;
  Box bounds() const override { return bounds_; }
  /// As `distance`, of a point in the upright body.
  double restDistance(const Vec3& rest) const;

 private:
  /// Lengths in centimetres; `z` the height above the ground of the upright body.
  struct Section {
    double z;
    double halfWidth;
    double front;
    double back;
  };
  Section sectionAt(double z) const;

  const Skeleton skeleton_;
  std::vector<Section> sections_;
  Box bounds_;
};

}  // namespace samples
