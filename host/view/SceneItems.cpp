#include "host/view/SceneItems.h"

#include <map>

#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/view/Surfaces.h"

namespace host {

namespace {

/// Materials are shared by many nodes; each is looked at once.
class SurfaceTable {
 public:
  const std::vector<Surface>& of(Mtl* material) {
    const auto known = surfaces_.find(material);
    if (known != surfaces_.end()) return known->second;
    return surfaces_.emplace(material, surfacesOf(material)).first->second;
  }

 private:
  std::map<Mtl*, std::vector<Surface>> surfaces_;
};

/// Whether a box is seen where the file of the object should be.
bool isPlaceholder(const Geometry& geometry) {
  const auto* proxy = dynamic_cast<const ProxyObject*>(&geometry);
  if (proxy != nullptr) return !proxy->problem().empty();
  const auto* surroundings = dynamic_cast<const SurroundingsObject*>(&geometry);
  return surroundings != nullptr && !surroundings->problem().empty();
}

}  // namespace

std::vector<ViewItem> viewItems(const Scene& scene) {
  std::vector<ViewItem> items;
  SurfaceTable surfaces;
  for (Node* node : scene.nodes()) {
    const auto* geometry = dynamic_cast<const Geometry*>(node->GetObjectRef());
    std::shared_ptr<const Mesh> mesh = geometry != nullptr ? geometry->mesh() : nullptr;
    if (mesh == nullptr) continue;
    ViewItem item;
    item.mesh = std::move(mesh);
    item.toWorld = node->GetObjectTM(0);
    item.node = node;
    if (isPlaceholder(*geometry)) item.label = node->GetName();
    items.push_back(std::move(item));
  }
  // Textures take of the memory what the meshes leave.
  for (ViewItem& item : items) item.surfaces = surfaces.of(item.node->GetMtl());
  return items;
}

}  // namespace host
