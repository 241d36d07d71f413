#include "host/formats/GltfWriter.h"

#include <QString>
#include <cmath>
#include <memory>
#include <utility>

#include "host/files/WholeFile.h"
#include "host/formats/GltfMaterials.h"
#include "host/meshes/GltfGeometry.h"
#include "host/scene/Geometry.h"
#include "host/scene/Node.h"

namespace host {

namespace {

/// What is no valid text becomes a replacement character; glTF allows nothing else.
std::string text(const MCHAR* wide) { return QString::fromWCharArray(wide).toStdString(); }

bool isUsable(const Matrix3& m) {
  for (int row = 0; row < 4; ++row) {
    const Point3 r = m.GetRow(row);
    if (!std::isfinite(r.x) || !std::isfinite(r.y) || !std::isfinite(r.z)) return false;
  }
  return true;
}

/// Empty for the identity, which is how glTF leaves a transform out, and for a matrix that holds no usable numbers.
std::vector<double> gltfMatrix(const Matrix3& m) {
  if (m.IsIdentity() != 0 || !isUsable(m)) return {};
  std::vector<double> numbers;
  for (int row = 0; row < 4; ++row) {
    const Point3 r = m.GetRow(row);
    numbers.insert(numbers.end(), {r.x, r.y, r.z, row == 3 ? 1.0 : 0.0});
  }
  return numbers;
}

/// Meshes of many materials, times the materials that they are shown in.
constexpr std::size_t MOST_PARTS = 100'000;

class SceneWriter {
 public:
  explicit SceneWriter(tinygltf::Model& model) : model_(model), materials_(model) {}

  void write(Node& root, double metresPerUnit) {
    const auto f = static_cast<float>(metresPerUnit);
    tinygltf::Node top;
    top.name = "Scene";
    top.matrix = gltfMatrix({{f, 0, 0}, {0, 0, -f}, {0, f, 0}, {0, 0, 0}});
    for (const Ref<Node>& child : root.children()) top.children.push_back(append(*child));
    tinygltf::Scene scene;
    scene.nodes = {append(std::move(top))};
    model_.scenes.push_back(scene);
    model_.defaultScene = 0;
  }

  /// Then what was made is not whole.
  bool isTooLarge() const { return parts_ > MOST_PARTS; }

 private:
  int append(tinygltf::Node node) {
    model_.nodes.push_back(std::move(node));
    return static_cast<int>(model_.nodes.size()) - 1;
  }

  int append(Node& node) {
    tinygltf::Node result;
    result.name = text(node.GetName());
    result.matrix = gltfMatrix(node.localTM());
    result.extras = extrasOf(node);
    placeMesh(node, result);
    for (const Ref<Node>& child : node.children()) result.children.push_back(append(*child));
    return append(std::move(result));
  }

  static tinygltf::Value extrasOf(const Node& node) {
    if (node.properties().empty()) return {};
    tinygltf::Value::Object properties;
    for (const auto& [key, value] : node.properties())
      properties[text(key.data())] = tinygltf::Value(text(value.data()));
    return tinygltf::Value(std::move(properties));
  }

  /// The object offset moves the mesh and not the children, so it needs a node of its own.
  void placeMesh(Node& node, tinygltf::Node& result) {
    const int mesh = meshOf(node);
    if (mesh < 0) return;
    std::vector<double> offset = gltfMatrix(node.objectOffset());
    if (offset.empty()) {
      result.mesh = mesh;
      return;
    }
    tinygltf::Node holder;
    holder.name = result.name + " object";
    holder.matrix = std::move(offset);
    holder.mesh = mesh;
    result.children.push_back(append(std::move(holder)));
  }

  /// -1 for a node without a surface, and for one that is nowhere.
  int meshOf(Node& node) {
    const auto* geometry = dynamic_cast<const Geometry*>(node.GetObjectRef());
    const std::shared_ptr<const Mesh> mesh = geometry != nullptr ? geometry->mesh() : nullptr;
    if (!mesh || mesh->triangles.empty() || !isUsable(node.GetObjectTM(0))) return -1;
    const auto key = std::make_pair(mesh, node.GetMtl());
    const auto known = meshes_.find(key);
    if (known != meshes_.end()) return known->second;
    if (isTooLarge()) return -1;
    tinygltf::Mesh result;
    result.name = text(node.GetName());
    result.primitives = geometryOf(mesh);
    for (tinygltf::Primitive& primitive : result.primitives) {
      primitive.material = materials_.indexOf(node.GetMtl(), static_cast<std::size_t>(primitive.material));
    }
    parts_ += result.primitives.size();
    model_.meshes.push_back(result);
    return meshes_[key] = static_cast<int>(model_.meshes.size()) - 1;
  }

  /// The same accessors for every material that the mesh is shown in.
  const std::vector<tinygltf::Primitive>& geometryOf(const std::shared_ptr<const Mesh>& mesh) {
    const auto known = geometries_.find(mesh);
    if (known != geometries_.end()) return known->second;
    return geometries_[mesh] = appendGeometry(model_, *mesh);
  }

  tinygltf::Model& model_;
  GltfMaterials materials_;
  // They hold the meshes, so that none dies and leaves its address to another while the document is made.
  std::map<std::shared_ptr<const Mesh>, std::vector<tinygltf::Primitive>> geometries_;
  std::map<std::pair<std::shared_ptr<const Mesh>, Mtl*>, int> meshes_;
  std::size_t parts_ = 0;
};

}  // namespace

std::string writeGltf(Node& root, double metresPerUnit, const std::filesystem::path& file) {
  if (!(metresPerUnit > 0.0) || !std::isfinite(metresPerUnit)) return "the scene's unit is not a length";
  tinygltf::Model model;
  SceneWriter writer(model);
  writer.write(root, metresPerUnit);
  const std::string bytes = writer.isTooLarge() ? std::string() : toGlb(model);
  if (bytes.empty()) return "the scene is too large for one glTF file";
  return writeWholeFile(file, bytes);
}

}  // namespace host
