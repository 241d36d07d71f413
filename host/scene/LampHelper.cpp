#include "host/scene/LampHelper.h"

#include "host/meshes/Mesh.h"

namespace host {

namespace {

constexpr float RADIUS = 15.0F;

/// An octahedron around the origin.
std::shared_ptr<const Mesh> makeLamp() {
  Mesh mesh;
  mesh.positions = {{RADIUS, 0, 0}, {0, RADIUS, 0}, {-RADIUS, 0, 0}, {0, -RADIUS, 0}, {0, 0, RADIUS}, {0, 0, -RADIUS}};
  for (std::uint32_t i = 0; i < 4; ++i) {
    const std::uint32_t next = (i + 1) % 4;
    mesh.triangles.push_back({i, next, 4});
    mesh.triangles.push_back({next, i, 5});
  }
  completeMesh(mesh);
  return std::make_shared<const Mesh>(std::move(mesh));
}

}  // namespace

std::shared_ptr<const Mesh> LampHelper::mesh() const {
  static const std::shared_ptr<const Mesh> lamp = makeLamp();
  return lamp;
}

Box3 LampHelper::bounds() const { return mesh()->bounds; }

}  // namespace host
