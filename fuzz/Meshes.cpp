#include "fuzz/Meshes.h"

#include <algorithm>
#include <cmath>

#include "fuzz/Look.h"
#include "fuzz/Require.h"
#include "host/meshes/MeshFile.h"
#include "host/meshes/MeshFileWriter.h"

namespace fuzz {

namespace {

bool isComplete(const host::Mesh& mesh) {
  const std::size_t count = mesh.positions.size();
  const auto fits = [count](const host::Mesh::Triangle& one) {
    return std::all_of(one.begin(), one.end(), [count](std::uint32_t corner) { return corner < count; });
  };
  return !mesh.triangles.empty() && std::all_of(mesh.triangles.begin(), mesh.triangles.end(), fits) &&
         mesh.normals.size() == count && (mesh.texCoords.empty() || mesh.texCoords.size() == count) &&
         (mesh.materialIds.empty() || mesh.materialIds.size() == mesh.triangles.size());
}

/// Coordinates at the very edge of what is read may be beyond it after a change of unit.
bool isWellInside(const host::Mesh& mesh) {
  const Point3 low = mesh.bounds.pmin;
  const Point3 high = mesh.bounds.pmax;
  const float most = std::max({-low.x, -low.y, -low.z, high.x, high.y, high.z});
  return most < 1e11F;
}

}  // namespace

void readAndUseMesh(std::string_view bytes) {
  const host::MeshResult read = host::readMesh(bytes);
  require((read.mesh != nullptr) == read.error.empty(), "either a mesh or a reason");
  if (read.mesh == nullptr) return;
  require(isComplete(*read.mesh), "a mesh that was read fits together");
  lookAt(read.mesh);
  if (!isWellInside(*read.mesh)) return;
  const host::MeshResult again = host::readMesh(host::glbBytes(*read.mesh));
  require(again.mesh != nullptr, "a mesh that was written is read");
  require(again.mesh->triangles.size() == read.mesh->triangles.size(), "a mesh that was written has all its triangles");
}

}  // namespace fuzz
