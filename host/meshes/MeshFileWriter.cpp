#include "host/meshes/MeshFileWriter.h"

#include <algorithm>

#include "host/files/WholeFile.h"
#include "host/meshes/CompactGeometry.h"
#include "host/meshes/GltfGeometry.h"

namespace host {

namespace {

constexpr float METRES_PER_CENTIMETRE = 0.01F;

Mesh inMetresYUp(const Mesh& mesh) {
  Mesh result = mesh;
  for (Point3& p : result.positions) p = Point3(p.x, p.z, -p.y) * METRES_PER_CENTIMETRE;
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

void addGeometry(tinygltf::Model& model, const Mesh& mesh, VertexPrecision precision) {
  tinygltf::Mesh& written = model.meshes.front();
  if (precision == VertexPrecision::Full) {
    written.primitives = appendGeometry(model, mesh);
    return;
  }
  CompactGeometry compact = appendCompactGeometry(model, mesh);
  written.primitives = std::move(compact.primitives);
  const auto number = [](float value) { return static_cast<double>(value); };
  model.nodes.front().translation = {number(compact.offset.x), number(compact.offset.y), number(compact.offset.z)};
  model.nodes.front().scale.assign(3, number(compact.scale));
}

}  // namespace

std::string glbBytes(const Mesh& mesh, VertexPrecision precision) {
  if (mesh.triangles.empty()) return {};
  tinygltf::Model model;
  addMaterials(model, mesh);
  model.meshes.emplace_back();
  model.nodes.emplace_back();
  model.nodes.front().mesh = 0;
  addGeometry(model, inMetresYUp(mesh), precision);
  model.scenes.emplace_back();
  model.scenes.front().nodes = {0};
  model.defaultScene = 0;
  return toGlb(model);
}

std::string writeMeshFile(const Mesh& mesh, const std::filesystem::path& file, VertexPrecision precision) {
  const std::string bytes = glbBytes(mesh, precision);
  if (bytes.empty()) return "the mesh has no triangles to write";
  return writeWholeFile(file, bytes);
}

}  // namespace host
