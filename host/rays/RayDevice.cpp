#include "host/rays/RayDevice.h"

#include <cmath>
#include <system_error>
#include <thread>

#include "host/geometry/Reach.h"
#include "host/rays/Visibility.h"

namespace host {

namespace {

/// The ray caster waits for ever for threads of its own that could not be started.
bool mayStartThreads() {
  try {
    std::thread([] {}).join();
    return true;
  } catch (const std::system_error&) {
    return false;
  }
}

}  // namespace

RTCDevice rayDevice() {
  // Never released: scenes of meshes that live in other statics may outlast any order of destruction.
  static const RTCDevice device = rtcNewDevice(mayStartThreads() ? nullptr : "threads=1");
  return device;
}

RTCScene newRayScene() {
  const RTCScene scene = rayDevice() != nullptr ? rtcNewScene(rayDevice()) : nullptr;
  if (scene != nullptr) rtcSetSceneFlags(scene, RTC_SCENE_FLAG_ROBUST | RTC_SCENE_FLAG_CONTEXT_FILTER_FUNCTION);
  return scene;
}

bool commitRayScene(RTCScene scene) {
  if (scene == nullptr) return false;
  // What went wrong before was answered by null.
  rtcGetDeviceError(rayDevice());
  rtcCommitScene(scene);
  return rtcGetDeviceError(rayDevice()) == RTC_ERROR_NONE;
}

std::optional<CasterRay> casterRay(const Ray& ray, float upTo) {
  const double x = ray.dir.x;
  const double y = ray.dir.y;
  const double z = ray.dir.z;
  const double length = std::sqrt(x * x + y * y + z * z);
  const bool usable = length > 0.0 && std::isfinite(length) && isWithin(FARTHEST_RAY, ray.p);
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
