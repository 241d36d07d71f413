#pragma once

#include <embree3/rtcore.h>
#include <ray.h>

#include <limits>
#include <optional>

namespace host {

/// The ray caster's device, made when first needed and kept until the program ends. Null where there is no memory for
/// it; then nothing that is made from it is there either.
RTCDevice rayDevice();

/// An empty scene of the ray caster, not committed; null without memory.
RTCScene newRayScene();
/// False when there is not enough memory, or no such scene; no ray may then be asked of it.
bool commitRayScene(RTCScene scene);

/// A ray for the ray caster, of unit direction; `unit` is the length of the given direction. Nothing where start or
/// direction are unusable or out of reach.
struct CasterRay {
  RTCRay ray;
  float unit;
};
std::optional<CasterRay> casterRay(const Ray& ray, float upTo = std::numeric_limits<float>::infinity());

}  // namespace host
