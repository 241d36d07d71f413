#pragma once

#include <embree3/rtcore.h>
#include <ray.h>

#include <limits>
#include <optional>

namespace host {

/// The ray caster's device, made when first needed and kept until the program ends.
RTCDevice rayDevice();

/// A ray for the ray caster, of unit direction; `unit` is the length of the given direction. Nothing where start or
/// direction are unusable.
struct CasterRay {
  RTCRay ray;
  float unit;
};
std::optional<CasterRay> casterRay(const Ray& ray, float upTo = std::numeric_limits<float>::infinity());

}  // namespace host
