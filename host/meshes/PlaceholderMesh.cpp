#include "host/meshes/PlaceholderMesh.h"

namespace host {

namespace {

constexpr float HALF_WIDTH = 25.0F;
constexpr float HEIGHT = 170.0F;

/// One side: the corners go around counter-clockwise, seen from outside.
void addSide(Mesh& mesh, const Point3& corner, const Point3& right, const Point3& up) {
  const auto first = static_cast<std::uint32_t>(mesh.positions.size());
  for (const Point3& p : {corner, corner + right, corner + right + up, corner + up}) mesh.positions.push_back(p);
  mesh.triangles.push_back({first, first + 1, first + 2});
  mesh.triangles.push_back({first, first + 2, first + 3});
}

std::shared_ptr<const Mesh> makeBox() {
  Mesh mesh;
  const Point3 x(2.0F * HALF_WIDTH, 0.0F, 0.0F);
  const Point3 y(0.0F, 2.0F * HALF_WIDTH, 0.0F);
  const Point3 z(0.0F, 0.0F, HEIGHT);
  const Point3 low(-HALF_WIDTH, -HALF_WIDTH, 0.0F);
  const Point3 high(HALF_WIDTH, HALF_WIDTH, HEIGHT);
  addSide(mesh, low, x, z);
  addSide(mesh, low, z, y);
  addSide(mesh, low, y, x);
  addSide(mesh, high, -z, -x);
  addSide(mesh, high, -y, -z);
  addSide(mesh, high, -x, -y);
  completeMesh(mesh);
  return std::make_shared<const Mesh>(std::move(mesh));
}

}  // namespace

std::shared_ptr<const Mesh> placeholderMesh() {
  static const std::shared_ptr<const Mesh> box = makeBox();
  return box;
}

}  // namespace host
