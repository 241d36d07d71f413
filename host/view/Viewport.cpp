#include "host/view/Viewport.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr float RADIANS_PER_PIXEL = 0.008F;
constexpr float NEARER_BY_STEP = 0.85F;
constexpr float NEAREST = 1e-3F;
constexpr float FARTHEST = 1e7F;
/// A little short of straight down, where there is no telling what is up in the picture.
constexpr float STEEPEST = 1.5607F;
constexpr float MARGIN = 1.10F;

bool isFinite(const Point3& p) { return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z); }

Point3 corner(const Box3& box, int i) {
  return {(i & 1) != 0 ? box.pmax.x : box.pmin.x, (i & 2) != 0 ? box.pmax.y : box.pmin.y,
          (i & 4) != 0 ? box.pmax.z : box.pmin.z};
}

}  // namespace

Viewport::Viewport(HWND window) : window_(window) {}

Point3 Viewport::towardsEye() const {
  return {std::sin(yaw_) * std::cos(pitch_), -std::cos(yaw_) * std::cos(pitch_), std::sin(pitch_)};
}

Camera Viewport::camera() const { return {target_ + towardsEye() * distance_, target_, VERTICAL_ANGLE}; }

void Viewport::MapScreenToWorldRay(float sx, float sy, Ray& ray) { ray = camera().rayThrough(sx, sy, width_, height_); }

void Viewport::resize(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
}

void Viewport::lookAt(const Point3& target, float distance, float yaw, float pitch) {
  if (!isFinite(target) || !(distance > 0.0F) || !isFinite({distance, yaw, pitch})) return;
  target_ = target;
  distance_ = std::clamp(distance, NEAREST, FARTHEST);
  yaw_ = std::remainder(yaw, 2.0F * std::acos(-1.0F));
  pitch_ = std::clamp(pitch, -STEEPEST, STEEPEST);
}

void Viewport::orbit(float dx, float dy) {
  lookAt(target_, distance_, yaw_ - dx * RADIANS_PER_PIXEL, pitch_ + dy * RADIANS_PER_PIXEL);
}

void Viewport::pan(float dx, float dy) {
  const float unitsPerPixel = 2.0F * std::tan(VERTICAL_ANGLE / 2.0F) * distance_ / static_cast<float>(height_);
  const Point3 right(std::cos(yaw_), std::sin(yaw_), 0.0F);
  const Point3 up = towardsEye() ^ right;
  lookAt(target_ - right * (dx * unitsPerPixel) + up * (dy * unitsPerPixel), distance_, yaw_, pitch_);
}

void Viewport::zoom(float steps) { lookAt(target_, distance_ * std::pow(NEARER_BY_STEP, steps), yaw_, pitch_); }

void Viewport::frame(const Box3& worldBounds) {
  if (worldBounds.IsEmpty()) return;
  const Point3 middle = worldBounds.Center();
  const Point3 forward = -towardsEye();
  const Point3 right(std::cos(yaw_), std::sin(yaw_), 0.0F);
  const Point3 up = right ^ forward;
  const float tanY = std::tan(VERTICAL_ANGLE / 2.0F) / MARGIN;
  const float tanX = tanY * static_cast<float>(width_) / static_cast<float>(height_);
  float distance = 0.0F;
  for (int i = 0; i < 8; ++i) {
    const Point3 p = corner(worldBounds, i) - middle;
    distance = std::max({distance, std::abs(p % right) / tanX - p % forward, std::abs(p % up) / tanY - p % forward});
  }
  // A single point has no size to go by.
  lookAt(middle, distance > NEAREST ? distance : 1.0F, yaw_, pitch_);
}

}  // namespace host
