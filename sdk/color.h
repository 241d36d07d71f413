#pragma once

/// Red, green and blue from 0 to 1.
class Color {
 public:
  float r = 0.0F;
  float g = 0.0F;
  float b = 0.0F;

  Color() = default;
  Color(float red, float green, float blue) : r(red), g(green), b(blue) {}
  bool operator==(const Color& other) const { return r == other.r && g == other.g && b == other.b; }
};
