#include "host/meshes/SolidMesh.h"

#include <utility>

namespace host {

void SolidMesh::addBox(const Point3& low, const Point3& high) {
  addPrism({{0, low.y, low.z}, {0, high.y, low.z}, {0, high.y, high.z}, {0, low.y, high.z}}, low.x, high.x);
}

void SolidMesh::addPrism(const std::vector<Point3>& shape, float fromX, float toX) {
  const auto at = [](const Point3& p, float x) { return Point3(x, p.y, p.z); };
  std::vector<Point3> front;
  std::vector<Point3> back;
  for (const Point3& p : shape) {
    front.push_back(at(p, toX));
    back.insert(back.begin(), at(p, fromX));
  }
  addSide(front);
  addSide(back);
  for (std::size_t i = 0; i < shape.size(); ++i) {
    const Point3& here = shape[i];
    const Point3& next = shape[(i + 1) % shape.size()];
    addSide({at(here, toX), at(here, fromX), at(next, fromX), at(next, toX)});
  }
}

void SolidMesh::addSide(const std::vector<Point3>& corners) {
  const auto first = static_cast<std::uint32_t>(mesh_.positions.size());
  mesh_.positions.insert(mesh_.positions.end(), corners.begin(), corners.end());
  for (std::uint32_t i = 2; i < corners.size(); ++i) mesh_.triangles.push_back({first, first + i - 1, first + i});
}

std::shared_ptr<const Mesh> SolidMesh::finish() {
  completeMesh(mesh_);
  return std::make_shared<const Mesh>(std::exchange(mesh_, {}));
}

}  // namespace host
