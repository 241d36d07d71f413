#pragma once

class IPoint2 {
 public:
  int x = 0;
  int y = 0;

  IPoint2() = default;
  IPoint2(int px, int py) : x(px), y(py) {}
};
