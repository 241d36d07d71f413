#include "host/view/Viewport.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr float radiansPerPixel = 0.008F;
constexpr float nearerByStep = 0.85F;
constexpr float nearest = 1e-3F;
constexpr float farthest = 1e7F;
/// A little short of straight down, where there is no telling what is up in the picture.
constexpr float steepest = 1.5607F;
constexpr float margin = 1.10F;

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

Camera Viewport::camera() const { return {target_ + towardsEye() * distance_, target_, verticalAngle}; }

void Viewport::MapScreenToWorldRay(float sx, float sy, Ray& ray) { ray = camera().rayThrough(sx, sy, width_, height_); }

void Viewport::resize(int width, int height) {
  width_ = std::max(1, width);
  height_ = std::max(1, height);
}

void Viewport::lookAt(const Point3& target, float distance, float yaw, float pitch) {
  if (!isFinite(target) || !(distance > 0.0F) || !isFinite({distance, yaw, pitch})) return;
  target_ = target;
  distance_ = std::clamp(distance, nearest, farthest);
  yaw_ = std::remainder(yaw, 2.0F * std::acos(-1.0F));
  pitch_ = std::clamp(pitch, -steepest, steepest);
}

void Viewport::orbit(float dx, float dy) {
  lookAt(target_, distance_, yaw_ - dx * radiansPerPixel, pitch_ + dy * radiansPerPixel);
}

void Viewport::pan(float dx, float dy) {
  const float unitsPerPixel = 2.0F * std::tan(verticalAngle / 2.0F) * distance_ / static_cast<float>(height_);
  const Point3 right(std::cos(yaw_), std::sin(yaw_), 0.0F);
  const Point3 up = towardsEye() ^ right;
  lookAt(target_ - right * (dx * unitsPerPixel) + up * (dy * unitsPerPixel), distance_, yaw_, pitch_);
}

void Viewport::zoom(float steps) { lookAt(target_, distance_ * std::pow(nearerByStep, steps), yaw_, pitch_); }

void Viewport::frame(const Box3& worldBounds) {
  if (worldBounds.IsEmpty()) return;
  const Point3 middle = worldBounds.Center();
  const Point3 forward = -towardsEye();
  const Point3 right(std::cos(yaw_), std::sin(yaw_), 0.0F);
  const Point3 up = right ^ forward;
  const float tanY = std::tan(verticalAngle / 2.0F) / margin;
  const float tanX = tanY * static_cast<float>(width_) / static_cast<float>(height_);
  float distance = 0.0F;
  for (int i = 0; i < 8; ++i) {
    const Point3 p = corner(worldBounds, i) - middle;
    distance = std::max({distance, std::abs(p % right) / tanX - p % forward, std::abs(p % up) / tanY - p % forward});
  }
  // A single point has no size to go by.
  lookAt(middle, distance > nearest ? distance : 1.0F, yaw_, pitch_);
}

}  // namespace host
