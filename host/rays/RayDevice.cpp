#include "host/rays/RayDevice.h"

#include <cmath>

namespace host {

RTCDevice rayDevice() {
  // Never released: scenes of meshes that live in other statics may outlast any order of destruction.
  static const RTCDevice device = rtcNewDevice(nullptr);
  return device;
}

std::optional<CasterRay> casterRay(const Ray& ray, float upTo) {
  const double x = ray.dir.x;
  const double y = ray.dir.y;
  const double z = ray.dir.z;
  const double length = std::sqrt(x * x + y * y + z * z);
  const bool usable = length > 0.0 && std::isfinite(length) && std::isfinite(ray.p.x + ray.p.y + ray.p.z);
  if (!usable) return std::nullopt;
  CasterRay result{};
  result.unit = static_cast<float>(length);
  result.ray.org_x = ray.p.x;
  result.ray.org_y = ray.p.y;
  result.ray.org_z = ray.p.z;
  result.ray.dir_x = static_cast<float>(x / length);
  result.ray.dir_y = static_cast<float>(y / length);
  result.ray.dir_z = static_cast<float>(z / length);
  result.ray.tfar = upTo * result.unit;
  result.ray.mask = ~0U;
  return result;
}

}  // namespace host
