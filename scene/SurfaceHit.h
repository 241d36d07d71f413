#pragma once

#include <windows.h>

class IPoint2;
class Point3;

namespace ZORVEL {

/// Where in the world a character can stand under a pixel.
class SurfaceHit {
 public:
  SurfaceHit() = delete;

  /// On the nearest surface, else on the plane Z = 0. False, and `position` left alone, when the pixel looks past that
  /// plane.
  static bool Find(HWND window, const IPoint2& m, Point3& position);
};

}  // namespace ZORVEL
