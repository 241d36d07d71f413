#pragma once

#include <cmath>

class Point3 {
 public:
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;

  Point3() = default;
  Point3(float px, float py, float pz) : x(px), y(py), z(pz) {}

  float& operator[](int i) { return i == 0 ? x : (i == 1 ? y : z); }
  float operator[](int i) const { return i == 0 ? x : (i == 1 ? y : z); }
  Point3 operator+(const Point3& p) const { return {x + p.x, y + p.y, z + p.z}; }
  Point3 operator-(const Point3& p) const { return {x - p.x, y - p.y, z - p.z}; }
  Point3 operator-() const { return {-x, -y, -z}; }
  Point3 operator*(float f) const { return {x * f, y * f, z * f}; }
  Point3 operator*(const Point3& p) const { return {x * p.x, y * p.y, z * p.z}; }
  Point3 operator/(float f) const { return {x / f, y / f, z / f}; }
  Point3& operator+=(const Point3& p) { return *this = *this + p; }
  Point3& operator-=(const Point3& p) { return *this = *this - p; }
  Point3& operator*=(float f) { return *this = *this * f; }
  bool operator==(const Point3& p) const { return x == p.x && y == p.y && z == p.z; }
  bool operator!=(const Point3& p) const { return !(*this == p); }

  /// Dot product.
  float operator%(const Point3& p) const { return x * p.x + y * p.y + z * p.z; }
  /// Cross product.
  Point3 operator^(const Point3& p) const { return {y * p.z - z * p.y, z * p.x - x * p.z, x * p.y - y * p.x}; }
  float Length() const { return std::sqrt(*this % *this); }
  /// A vector without length stays as it is.
  Point3 Normalize() const {
    const float length = Length();
    return length > 0.0F ? *this / length : *this;
  }
};

inline Point3 operator*(float f, const Point3& p) { return p * f; }
inline float DotProd(const Point3& a, const Point3& b) { return a % b; }
inline Point3 CrossProd(const Point3& a, const Point3& b) { return a ^ b; }
inline float Length(const Point3& p) { return p.Length(); }
inline Point3 Normalize(const Point3& p) { return p.Normalize(); }
