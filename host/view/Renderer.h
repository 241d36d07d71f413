#pragma once

#include <QColor>
#include <QImage>
#include <atomic>
#include <functional>
#include <limits>

#include "host/rays/RayScene.h"
#include "host/view/Camera.h"

namespace host {

struct RenderOptions {
  enum class Background { Studio, Plain, Transparent };

  /// In pixels; 1 to 16384 each.
  int width = 960;
  int height = 600;
  /// Samples for each pixel; 1 to 4096.
  int samples = 20;
  /// A pixel takes no more samples once its light is known this well, as one standard deviation of a byte's 255 steps;
  /// 0 takes them all.
  float enough = 0.0F;
  /// A floor at Z = 0 that is seen only by the shadows upon it, and only from above.
  bool ground = true;
  Background background = Background::Studio;
  /// Of a plain background.
  QColor backgroundColor = Qt::white;
  /// 0 takes one thread for each processor. The picture is the same with any number.
  unsigned threads = 0;
  /// Told the share that is done, from 0 to 1, in the thread that called `render`.
  std::function<void(float)> progress;
  /// Set by anybody to stop early; null when nobody will.
  const std::atomic<bool>* cancel = nullptr;
  /// Of the processor, all threads together; a picture that is not done by then is given up. A few thousand triangles
  /// in one place make each ray as dear as a picture.
  double mostSeconds = std::numeric_limits<double>::infinity();
};

/// Draws the scene with sun and sky, ready to be shown or saved; the same picture on every run. A null image when it
/// was cancelled or given up, or the options are out of range.
QImage render(const RayScene& scene, const Camera& camera, const RenderOptions& options);

}  // namespace host
