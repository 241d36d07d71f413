#include "host/view/SceneItems.h"

#include <map>

#include "host/files/Paths.h"
#include "host/rays/Visibility.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/services/Listener.h"
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

/// Nodes that have something to show and cannot be shown, in one line however many they are.
class OutOfReach {
 public:
  void add(Node& node) {
    if (++count_ <= MOST_NAMED) names_ += (count_ == 1 ? "\"" : ", \"") + shortened(node.GetName()) + "\"";
  }
  void report() const {
    if (count_ == 0) return;
    const std::string others = count_ > MOST_NAMED ? " and " + std::to_string(count_ - MOST_NAMED) + " more" : "";
    Listener::instance().reportOnce(
        "Not shown, because too far away (beyond 10,000,000,000 scene units), too large, "
        "too small or too skewed: " +
        names_ + others + ".");
  }

 private:
  static constexpr std::size_t MOST_NAMED = 10;

  static std::string shortened(const std::wstring& name) {
    constexpr std::size_t longest = 60;
    return toUtf8(name.size() > longest ? name.substr(0, longest) + L"..." : name);
  }

  std::size_t count_ = 0;
  std::string names_;
};

}  // namespace

std::vector<ViewItem> viewItems(const Scene& scene) {
  std::vector<ViewItem> items;
  SurfaceTable surfaces;
  OutOfReach outOfReach;
  for (Node* node : scene.nodes()) {
    const auto* geometry = dynamic_cast<const Geometry*>(node->GetObjectRef());
    std::shared_ptr<const Mesh> mesh = geometry != nullptr ? geometry->mesh() : nullptr;
    if (mesh == nullptr) continue;
    ViewItem item;
    item.mesh = std::move(mesh);
    item.toWorld = node->GetObjectTM(0);
    item.node = node;
    if (isPlaceholder(*geometry)) item.label = node->GetName();
    if (visibilityOf(item) == Visibility::OutOfReach) outOfReach.add(*node);
    items.push_back(std::move(item));
  }
  outOfReach.report();
  // Textures take of the memory what the meshes leave.
  for (ViewItem& item : items) item.surfaces = surfaces.of(item.node->GetMtl());
  return items;
}

}  // namespace host
