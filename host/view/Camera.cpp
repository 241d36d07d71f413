#include "host/view/Camera.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

const Point3 THREE_QUARTER_FRONT(0.42F, -1.0F, 0.19F);
// A little air around what is framed.
constexpr float MARGIN = 1.10F;

Box3 framed(const Box3& box) {
  if (!box.IsEmpty() && box.Width().Length() > 0.0F) return box;
  const Point3 middle = box.IsEmpty() ? Point3() : box.pmin;
  const Point3 half(0.5F, 0.5F, 0.5F);
  Box3 around;
  around += middle - half;
  around += middle + half;
  return around;
}

Point3 corner(const Box3& box, int i) {
  return {(i & 1) != 0 ? box.pmax.x : box.pmin.x, (i & 2) != 0 ? box.pmax.y : box.pmin.y,
          (i & 4) != 0 ? box.pmax.z : box.pmin.z};
}

}  // namespace

Camera::Camera(const Point3& eye, const Point3& target, float verticalAngle) : eye_(eye), angle_(verticalAngle) {
  forward_ = (target - eye).Normalize();
  if (!(forward_.Length() > 0.5F)) forward_ = Point3(0, 1, 0);
  const Point3 sideways = forward_ ^ Point3(0, 0, 1);
  // Straight up or down the world's Y is up in the picture.
  right_ = sideways.Length() > 1e-5F ? sideways.Normalize() : Point3(1, 0, 0);
  up_ = right_ ^ forward_;
}

Camera Camera::framing(const Box3& worldBounds, float aspect) {
  const Box3 box = framed(worldBounds);
  const Camera direction(THREE_QUARTER_FRONT, Point3());
  const float tanY = std::tan(DEFAULT_ANGLE / 2.0F) / MARGIN;
  const float tanX = tanY * std::max(aspect, 0.01F);

  // The nearest eye from which every corner is inside the four planes of view: each pair of planes asks for a place of
  // its own along and across the view.
  float left = 1e30F, right = -1e30F, bottom = 1e30F, top = -1e30F;
  const Point3 middle = box.Center();
  for (int i = 0; i < 8; ++i) {
    const Point3 p = corner(box, i) - middle;
    const float depth = p % direction.forward_;
    const float x = p % direction.right_;
    const float y = p % direction.up_;
    right = std::max(right, x - depth * tanX);
    left = std::min(left, x + depth * tanX);
    top = std::max(top, y - depth * tanY);
    bottom = std::min(bottom, y + depth * tanY);
  }
  const float distance = std::max((right - left) / (2.0F * tanX), (top - bottom) / (2.0F * tanY));
  const Point3 target = middle + direction.right_ * ((right + left) / 2.0F) + direction.up_ * ((top + bottom) / 2.0F);
  return Camera(target - direction.forward_ * distance, target);
}

Ray Camera::rayThrough(float x, float y, int width, int height) const {
  const float scale = 2.0F * std::tan(angle_ / 2.0F) / static_cast<float>(height);
  const float across = (x - static_cast<float>(width) / 2.0F) * scale;
  const float upward = (static_cast<float>(height) / 2.0F - y) * scale;
  Ray ray;
  ray.p = eye_;
  ray.dir = (forward_ + right_ * across + up_ * upward).Normalize();
  return ray;
}

std::optional<QPointF> Camera::project(const Point3& world, int width, int height) const {
  const Point3 p = world - eye_;
  const float depth = p % forward_;
  if (!(depth > 0.0F)) return std::nullopt;
  const float scale = static_cast<float>(height) / (2.0F * std::tan(angle_ / 2.0F) * depth);
  const float x = static_cast<float>(width) / 2.0F + (p % right_) * scale;
  const float y = static_cast<float>(height) / 2.0F - (p % up_) * scale;
  if (!std::isfinite(x) || !std::isfinite(y)) return std::nullopt;
  return QPointF(static_cast<double>(x), static_cast<double>(y));
}

}  // namespace host
