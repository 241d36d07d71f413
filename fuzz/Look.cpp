#include "fuzz/Look.h"

#include "host/application/Application.h"
#include "host/rays/RayScene.h"
#include "host/scene/Scene.h"
#include "host/view/SceneItems.h"

namespace fuzz {

namespace {

constexpr std::size_t MOST_TRIANGLES = 10'000;

void look(std::vector<host::ViewItem> items) {
  host::RayScene rays;
  rays.setItems(std::move(items));
  const Box3 bounds = rays.bounds();
  if (bounds.IsEmpty()) return;
  for (const Point3& from : {bounds.pmax, bounds.pmin, Point3(0, 0, 1000)}) {
    const auto hit = rays.intersect({from, bounds.Center() - from});
    if (hit) rays.surface(hit->item, hit->materialId);
    rays.occluded({bounds.Center(), from});
  }
}

}  // namespace

void lookAtScene() { look(host::viewItems(host::Application::instance().scene())); }

void lookAt(const std::shared_ptr<const host::Mesh>& mesh) {
  if (mesh->triangles.size() > MOST_TRIANGLES) return;
  host::ViewItem item;
  item.mesh = mesh;
  look({item});
}

}  // namespace fuzz
