#include "host/scene/SurroundingsObject.h"

#include "host/files/Paths.h"
#include "host/meshes/MeshCache.h"
#include "host/meshes/PlaceholderMesh.h"
#include "host/rays/RayMesh.h"
#include "host/services/Listener.h"

namespace host {

SurroundingsObject::SurroundingsObject(const std::wstring& file) : file_(file) {
  MeshResult reading = sharedMeshes().get(resolvePath(file));
  mesh_ = reading.mesh != nullptr ? std::move(reading.mesh) : placeholderMesh();
  problem_ = reading.error;
  if (!problem_.empty()) Listener::instance().report("Mesh " + toUtf8(file) + ": " + problem_);
}

int SurroundingsObject::IntersectRay(TimeValue /*t*/, Ray& ray, float& at, Point3& norm) {
  const auto hit = intersect(mesh_, ray);
  if (!hit) return 0;
  at = hit->distance;
  norm = hit->normal;
  return 1;
}

Box3 SurroundingsObject::bounds() const { return mesh_->bounds; }

}  // namespace host
