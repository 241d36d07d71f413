#pragma once

#include <color.h>

#include "host/rays/RayScene.h"
#include "host/view/Camera.h"
#include "host/view/Renderer.h"
#include "host/view/SamplePattern.h"
#include "host/view/Shader.h"

namespace host {

/// Light as a picture shows it, already through the film's curve but linear, weighted by its coverage.
struct Coverage {
  Color color;
  float alpha = 0.0F;
};

/// Finds what each pixel shows. May be used from several threads.
class PixelTracer {
 public:
  /// All three must outlive the tracer.
  PixelTracer(const RayScene& scene, const Camera& camera, const RenderOptions& options);

  Coverage pixel(int x, int y) const;

 private:
  Coverage sample(const Ray& ray, int y, const SampleSource& source) const;
  Coverage groundSeen(const Ray& ray, float distance, int y, const SampleSource& source) const;
  float groundDistance(const Ray& ray) const;
  Coverage background(int y) const;

  const RayScene& scene_;
  const Camera& camera_;
  const RenderOptions& options_;
  Shader shader_;
  /// Where shadows on the ground begin to fade, measured from the middle of the scene.
  Point3 middle_;
  float radius_ = 0.0F;
};

}  // namespace host
