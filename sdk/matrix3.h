#pragma once

#include <maxtypes.h>
#include <point3.h>

/// Four rows by three columns over row vectors: p' = p * M, rows 0 to 2 are the axes, row 3 the translation, and A * B
/// is first A, then B. The default constructor leaves the contents undefined, as in 3ds Max 2018.
class Matrix3 {
 public:
  Matrix3() = default;
  /// 1 makes the identity, 0 all zeros.
  explicit Matrix3(BOOL init);
  Matrix3(const Point3& r0, const Point3& r1, const Point3& r2, const Point3& r3) : rows_{r0, r1, r2, r3} {}

  void IdentityMatrix();
  void Zero();
  int IsIdentity() const;

  Point3 GetRow(int i) const { return rows_[i]; }
  void SetRow(int i, const Point3& p) { rows_[i] = p; }
  Point3 GetTrans() const { return rows_[3]; }
  void SetTrans(const Point3& p) { rows_[3] = p; }
  void SetTranslate(const Point3& p);

  // Appended, in world axes; angles in radians, counter-clockwise seen from the positive axis.
  void Translate(const Point3& p) { rows_[3] += p; }
  void RotateX(float angle);
  void RotateY(float angle);
  void RotateZ(float angle);
  /// The translation row is scaled only when `trans` is TRUE.
  void Scale(const Point3& s, BOOL trans = FALSE);

  void Invert();
  Matrix3 operator*(const Matrix3& other) const;
  Matrix3& operator*=(const Matrix3& other) { return *this = *this * other; }
  bool operator==(const Matrix3& other) const;
  Point3 PointTransform(const Point3& p) const { return VectorTransform(p) + rows_[3]; }
  Point3 VectorTransform(const Point3& p) const { return rows_[0] * p.x + rows_[1] * p.y + rows_[2] * p.z; }

 private:
  Point3 rows_[4];
};

/// A matrix that cannot be inverted gives the identity.
Matrix3 Inverse(const Matrix3& m);
inline Point3 VectorTransform(const Matrix3& m, const Point3& v) { return m.VectorTransform(v); }
inline Point3 operator*(const Point3& p, const Matrix3& m) { return m.PointTransform(p); }
