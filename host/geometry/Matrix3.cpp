#include <matrix3.h>

#include <cmath>

Matrix3::Matrix3(BOOL init) {
  if (init != FALSE) IdentityMatrix();
}

void Matrix3::IdentityMatrix() { *this = Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {0, 0, 0}); }

void Matrix3::Zero() { *this = Matrix3({}, {}, {}, {}); }

int Matrix3::IsIdentity() const { return *this == Matrix3(TRUE) ? 1 : 0; }

void Matrix3::SetTranslate(const Point3& p) {
  IdentityMatrix();
  rows_[3] = p;
}

void Matrix3::RotateX(float angle) {
  const float s = std::sin(angle);
  const float c = std::cos(angle);
  *this *= Matrix3({1, 0, 0}, {0, c, s}, {0, -s, c}, {0, 0, 0});
}

void Matrix3::RotateY(float angle) {
  const float s = std::sin(angle);
  const float c = std::cos(angle);
  *this *= Matrix3({c, 0, -s}, {0, 1, 0}, {s, 0, c}, {0, 0, 0});
}

void Matrix3::RotateZ(float angle) {
  const float s = std::sin(angle);
  const float c = std::cos(angle);
  *this *= Matrix3({c, s, 0}, {-s, c, 0}, {0, 0, 1}, {0, 0, 0});
}

void Matrix3::Scale(const Point3& s, BOOL trans) {
  const int last = trans != FALSE ? 4 : 3;
  for (int i = 0; i < last; ++i) rows_[i] = rows_[i] * s;
}

Matrix3 Matrix3::operator*(const Matrix3& other) const {
  return {other.VectorTransform(rows_[0]), other.VectorTransform(rows_[1]), other.VectorTransform(rows_[2]),
          other.PointTransform(rows_[3])};
}

bool Matrix3::operator==(const Matrix3& other) const {
  for (int i = 0; i < 4; ++i) {
    if (rows_[i] != other.rows_[i]) return false;
  }
  return true;
}

void Matrix3::Invert() { *this = Inverse(*this); }

namespace {

// Cofactors in double: a scene in kilometres scales by 1e-5, whose cube a float determinant could not hold well.
struct Vector {
  double x, y, z;
};

Vector vector(const Point3& p) { return {p.x, p.y, p.z}; }

Vector cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

float dot(const Vector& a, const Vector& b, double factor) {
  return static_cast<float>((a.x * b.x + a.y * b.y + a.z * b.z) * factor);
}

}  // namespace

Matrix3 Inverse(const Matrix3& m) {
  const Vector r0 = vector(m.GetRow(0));
  const Vector r1 = vector(m.GetRow(1));
  const Vector r2 = vector(m.GetRow(2));
  const Vector t = vector(m.GetTrans());
  const Vector c0 = cross(r1, r2);
  const Vector c1 = cross(r2, r0);
  const Vector c2 = cross(r0, r1);
  const double determinant = r0.x * c0.x + r0.y * c0.y + r0.z * c0.z;
  if (determinant == 0.0 || !std::isfinite(determinant)) return Matrix3(TRUE);
  const double f = 1.0 / determinant;
  const auto row = [f](double a, double b, double c) {
    return Point3(static_cast<float>(a * f), static_cast<float>(b * f), static_cast<float>(c * f));
  };
  return {row(c0.x, c1.x, c2.x), row(c0.y, c1.y, c2.y), row(c0.z, c1.z, c2.z),
          Point3(dot(t, c0, -f), dot(t, c1, -f), dot(t, c2, -f))};
}
