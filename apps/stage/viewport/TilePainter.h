#pragma once

#include <QImage>
#include <QSize>
#include <atomic>
#include <map>

#include "apps/stage/viewport/TileBoard.h"
#include "host/view/Camera.h"
#include "host/view/PixelTracer.h"
#include "host/view/Renderer.h"

namespace stage {

/// Draws tiles of one picture of the scene as it stands: things with light and shadow, nothing where there is nothing,
/// so that grid and background can lie underneath. `paint` may be called from several threads at once.
class TilePainter {
 public:
  /// The scene must outlive the painter and not change meanwhile.
  TilePainter(const host::RayScene& scene, const host::Camera& camera, const QSize& picture);
  TilePainter(const TilePainter&) = delete;
  TilePainter& operator=(const TilePainter&) = delete;

  /// The tile as premultiplied ARGB, a pixel for a pixel; a null picture once `stop` is set.
  QImage paint(const TileBoard::Task& task, const std::atomic<bool>& stop) const;

 private:
  QImage paintCoarse(const QRect& where, int step, const std::atomic<bool>& stop) const;

  /// The tracer keeps references to both.
  struct Tracer {
    Tracer(const host::RayScene& scene, const host::Camera& camera, const QSize& picture, int samples);
    host::Camera camera;
    host::RenderOptions options;
    host::PixelTracer tracer;
  };

  /// By samples for each pixel.
  std::map<int, Tracer> tracers_;
};

}  // namespace stage
