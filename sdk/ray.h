#pragma once

#include <point3.h>

class Ray {
 public:
  Point3 p;
  Point3 dir;
};
