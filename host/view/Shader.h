#pragma once

#include <color.h>

#include "host/rays/RayScene.h"
#include "host/view/SamplePattern.h"

namespace host {

/// Where one sample of one pixel takes its random directions from.
struct SampleSource {
  const SamplePattern& pattern;
  std::uint32_t index;
  std::uint32_t count;

  SamplePattern::Pair pair(SamplePattern::Use use) const { return pattern.pair(use, index, count); }
};

/// How much light reaches a place, and how a surface returns it.
class Shader {
 public:
  /// The scene must outlive the shader. With the ground, what faces down is lit by it.
  Shader(const RayScene& scene, bool ground) : scene_(scene), ground_(ground) {}

  /// The light that a hit sends back along the ray, which has unit direction. Both sides of a surface are alike.
  Color light(const SceneHit& hit, const Ray& ray, const SampleSource& source) const;
  /// What a place on the ground receives, compared with open ground: 1 where nothing is in the way. `eyeDistance` is in
  /// scene units.
  Color groundLight(const Point3& place, float eyeDistance, const SampleSource& source) const;

 private:
  /// Whether the sun reaches a place; `tilt` turns the way there by that vector.
  bool sunSeen(const Point3& start, const Point3& tilt, const SampleSource& source) const;
  /// The sky's light upon a surface; `nearby` comes from where something is in the way.
  Color skyReceived(const Point3& start, const Point3& normal, const Color& nearby, float eyeDistance,
                    const SampleSource& source) const;
  Color skyFrom(const Point3& start, const Point3& direction, float eyeDistance) const;

  const RayScene& scene_;
  bool ground_;
};

}  // namespace host
