#include "host/scene/ProxyObject.h"

#include "host/files/Paths.h"
#include "host/meshes/MeshCache.h"
#include "host/meshes/PlaceholderMesh.h"
#include "host/rays/RayMesh.h"
#include "host/services/Listener.h"

namespace host {

ProxyObject::ProxyObject() : loaded_(std::make_shared<Loaded>()) {
  const auto forget = [loaded = loaded_] { *loaded = Loaded(); };
  block_ = Ref<ParameterBlock>(
      new ParameterBlock(0, {{FILE_NAME, TYPE_FILENAME, std::wstring()}, {SCALE, TYPE_FLOAT, 1.0F}}, forget));
}

int ProxyObject::IntersectRay(TimeValue /*t*/, Ray& ray, float& at, Point3& norm) {
  const auto hit = intersect(mesh(), ray);
  if (!hit) return 0;
  at = hit->distance;
  norm = hit->normal;
  return 1;
}

Box3 ProxyObject::bounds() const { return mesh()->bounds; }

std::shared_ptr<const Mesh> ProxyObject::mesh() const {
  load();
  return loaded_->mesh;
}

std::string ProxyObject::problem() const {
  load();
  return loaded_->problem;
}

std::wstring ProxyObject::fileName() const { return std::get<std::wstring>(block_->parameters().front().value); }

void ProxyObject::load() const {
  if (loaded_->mesh != nullptr) return;
  const MeshResult reading = sharedMeshes().get(resolvePath(fileName()).string());
  loaded_->mesh = reading.mesh != nullptr ? reading.mesh : placeholderMesh();
  loaded_->problem = reading.error;
  if (!reading.error.empty()) {
    Listener::instance().report("Mesh " + toUtf8(fileName()) + ": " + reading.error);
  }
}

}  // namespace host
