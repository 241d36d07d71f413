#pragma once

#include "samples/geometry/Vector.h"

namespace samples {

struct Box {
  Vec3 low{1e9, 1e9, 1e9};
  Vec3 high{-1e9, -1e9, -1e9};

  void add(const Vec3& point, double radius = 0);
  void add(const Box& box);
  Box grown(double margin) const;
  /// 0 inside.
  double distance(const Vec3& point) const;
};

}  // namespace samples
