#pragma once

#include <box3.h>
#include <maxapi.h>

#include "host/view/Camera.h"

namespace host {

/// A view of the scene in a window: its size in pixels and a camera that circles around a target. The window's handle
/// is a token of the host's own that no other viewport ever gets. Made and owned by Viewports; the widget that shows it
/// says what the mouse did.
class Viewport final : public ViewExp {
 public:
  /// Looks at a room of a few metres around the origin.
  explicit Viewport(HWND window);

  void MapScreenToWorldRay(float sx, float sy, Ray& ray) override;
  HWND GetHWnd() override { return window_; }
  bool IsAlive() override { return true; }

  Camera camera() const;
  int width() const { return width_; }
  int height() const { return height_; }
  const Point3& target() const { return target_; }
  float distance() const { return distance_; }
  float yaw() const { return yaw_; }
  float pitch() const { return pitch_; }

  /// At least one pixel each way; a smaller size is taken as one.
  void resize(int width, int height);
  /// The whole camera: a distance in scene units above zero, angles in radians. At yaw 0 it looks along +Y, a positive
  /// yaw takes it around to the right; a positive pitch lifts it, up to right above the target. What is no number
  /// changes nothing.
  void lookAt(const Point3& target, float distance, float yaw, float pitch);
  // Pixels that the mouse went since the last call, to the right and down.
  void orbit(float dx, float dy);
  /// What is at the target's depth follows the mouse.
  void pan(float dx, float dy);
  /// Steps of a wheel, forward is nearer; never reaches the target.
  void zoom(float steps);
  /// Keeps the direction and shows the whole box; an empty one is left alone.
  void frame(const Box3& worldBounds);

  static constexpr float VERTICAL_ANGLE = 0.70F;

 private:
  Point3 towardsEye() const;

  HWND window_;
  int width_ = 1;
  int height_ = 1;
  Point3 target_ = Point3(0.0F, 0.0F, 80.0F);
  float distance_ = 600.0F;
  float yaw_ = 0.40F;
  float pitch_ = 0.30F;
};

}  // namespace host
