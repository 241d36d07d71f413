#include "host/meshes/MeshFileWriter.h"

#include <algorithm>

#include "host/files/WholeFile.h"
#include "host/meshes/GltfGeometry.h"

namespace host {

namespace {

constexpr float metresPerCentimetre = 0.01F;

Mesh inMetresYUp(const Mesh& mesh) {
  Mesh result = mesh;
  for (Point3& p : result.positions) p = Point3(p.x, p.z, -p.y) * metresPerCentimetre;
  for (Point3& n : result.normals) n = Point3(n.x, n.z, -n.y);
  return result;
}

/// Material ids are indices into this list, so it reaches up to the highest.
void addMaterials(tinygltf::Model& model, const Mesh& mesh) {
  std::size_t count = 1;
  for (const std::uint16_t id : mesh.materialIds) count = std::max<std::size_t>(count, id + 1U);
  for (std::size_t i = 0; i < count; ++i) {
    tinygltf::Material material;
    material.name = "Material " + std::to_string(i + 1);
    material.pbrMetallicRoughness.metallicFactor = 0.0;
    model.materials.push_back(material);
  }
}

}  // namespace

std::string glbBytes(const Mesh& mesh) {
  if (mesh.triangles.empty()) return {};
  tinygltf::Model model;
  addMaterials(model, mesh);
  model.meshes.emplace_back();
  model.meshes.front().primitives = appendGeometry(model, inMetresYUp(mesh));
  model.nodes.emplace_back();
  model.nodes.front().mesh = 0;
  model.scenes.emplace_back();
  model.scenes.front().nodes = {0};
  model.defaultScene = 0;
  return toGlb(model);
}

std::string writeMeshFile(const Mesh& mesh, const std::filesystem::path& file) {
  const std::string bytes = glbBytes(mesh);
  if (bytes.empty()) return "the mesh has no triangles to write";
  return writeWholeFile(file, bytes);
}

}  // namespace host
