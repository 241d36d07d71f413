#pragma once

#include <point3.h>

#include <algorithm>

class Box3 {
 public:
  Point3 pmin;
  Point3 pmax;

  Box3() { Init(); }
  void Init() {
    pmin = Point3(1e30F, 1e30F, 1e30F);
    pmax = -pmin;
  }
  bool IsEmpty() const { return pmin.x > pmax.x || pmin.y > pmax.y || pmin.z > pmax.z; }
  Box3& operator+=(const Point3& p) {
    pmin = Point3(std::min(pmin.x, p.x), std::min(pmin.y, p.y), std::min(pmin.z, p.z));
    pmax = Point3(std::max(pmax.x, p.x), std::max(pmax.y, p.y), std::max(pmax.z, p.z));
    return *this;
  }
  Box3& operator+=(const Box3& box) { return box.IsEmpty() ? *this : (*this += box.pmin) += box.pmax; }
  Point3 Center() const { return (pmin + pmax) * 0.5F; }
  Point3 Width() const { return pmax - pmin; }
};
