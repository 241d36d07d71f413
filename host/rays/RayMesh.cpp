#include "host/rays/RayMesh.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "host/geometry/Reach.h"
#include "host/rays/RayDevice.h"
#include "host/rays/Visibility.h"

namespace host {

namespace {

template <class Item>
bool fillBuffer(RTCGeometry geometry, RTCBufferType type, RTCFormat format, const std::vector<Item>& items) {
  void* buffer = rtcSetNewGeometryBuffer(geometry, type, 0, format, sizeof(Item), items.size());
  if (buffer != nullptr) std::copy(items.begin(), items.end(), static_cast<Item*>(buffer));
  return buffer != nullptr;
}

/// False without enough memory.
bool attachTriangles(RTCScene scene, const Mesh& mesh) {
  const RTCGeometry geometry = rtcNewGeometry(rayDevice(), RTC_GEOMETRY_TYPE_TRIANGLE);
  if (geometry == nullptr) return false;
  const bool filled = fillBuffer(geometry, RTC_BUFFER_TYPE_VERTEX, RTC_FORMAT_FLOAT3, mesh.positions) &&
                      fillBuffer(geometry, RTC_BUFFER_TYPE_INDEX, RTC_FORMAT_UINT3, mesh.triangles);
  if (filled) rtcCommitGeometry(geometry);
  const bool attached = filled && rtcAttachGeometry(scene, geometry) != RTC_INVALID_GEOMETRY_ID;
  rtcReleaseGeometry(geometry);
  return attached;
}

/// Prepared meshes for as long as their mesh lives; those of the dead go when another is prepared.
class Prepared {
 public:
  std::shared_ptr<const RayMesh> get(const std::shared_ptr<const Mesh>& mesh) {
    const std::lock_guard<std::mutex> lock(mutex_);
    const auto known = entries_.find(mesh.get());
    // Another mesh may have been made at the address of one that died.
    if (known != entries_.end() && known->second.mesh.lock() == mesh) return known->second.prepared;
    forgetTheDead();
    auto prepared = std::make_shared<const RayMesh>(*mesh);
    // Without memory it is tried again next time.
    if (prepared->scene() != nullptr) entries_[mesh.get()] = {mesh, prepared};
    return prepared;
  }

 private:
  struct Entry {
    std::weak_ptr<const Mesh> mesh;
    std::shared_ptr<const RayMesh> prepared;
  };

  void forgetTheDead() {
    for (auto entry = entries_.begin(); entry != entries_.end();) {
      entry = entry->second.mesh.expired() ? entries_.erase(entry) : std::next(entry);
    }
  }

  std::mutex mutex_;
  std::map<const Mesh*, Entry> entries_;
};

}  // namespace

std::shared_ptr<const RayMesh> RayMesh::of(const std::shared_ptr<const Mesh>& mesh) {
  static Prepared prepared;
  return prepared.get(mesh);
}

RayMesh::RayMesh(const Mesh& mesh) : scene_(newRayScene()) {
  if (scene_ == nullptr) return;
  // What is out of reach is as if it were not there.
  const bool empty = mesh.triangles.empty() || !isWithin(FARTHEST_CORNER, mesh.bounds);
  usable_ = (empty || attachTriangles(scene_, mesh)) && commitRayScene(scene_);
}

RayMesh::~RayMesh() {
  if (scene_ != nullptr) rtcReleaseScene(scene_);
}

std::optional<MeshHit> intersect(const std::shared_ptr<const Mesh>& mesh, const Ray& ray) {
  const std::optional<CasterRay> caster = casterRay(ray);
  if (!mesh || !caster) return std::nullopt;
  const std::shared_ptr<const RayMesh> prepared = RayMesh::of(mesh);
  if (prepared->scene() == nullptr) return std::nullopt;
  RTCRayHit query{};
  query.ray = caster->ray;
  query.hit.geomID = RTC_INVALID_GEOMETRY_ID;
  RTCIntersectContext context;
  rtcInitIntersectContext(&context);
  rtcIntersect1(prepared->scene(), &context, &query);
  if (query.hit.geomID == RTC_INVALID_GEOMETRY_ID) return std::nullopt;
  return MeshHit{query.ray.tfar / caster->unit, query.hit.primID, query.hit.u, query.hit.v,
                 normalAt(*mesh, query.hit.primID, query.hit.u, query.hit.v)};
}

Point3 normalAt(const Mesh& mesh, std::uint32_t triangle, float second, float third) {
  const Mesh::Triangle& corners = mesh.triangles[triangle];
  return (mesh.normals[corners[0]] * (1.0F - second - third) + mesh.normals[corners[1]] * second +
          mesh.normals[corners[2]] * third)
      .Normalize();
}

}  // namespace host
