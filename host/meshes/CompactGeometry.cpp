#include "host/meshes/CompactGeometry.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "host/meshes/GltfGeometry.h"

namespace host {

namespace {

constexpr float STEPS = 65535.0F;
constexpr const char* EXTENSION = "KHR_mesh_quantization";

/// The triangles of one material id, with vertices of their own.
Mesh part(const Mesh& mesh, std::uint16_t material) {
  constexpr std::uint32_t unused = std::numeric_limits<std::uint32_t>::max();
  std::vector<std::uint32_t> numbers(mesh.positions.size(), unused);
  Mesh result;
  for (std::size_t i = 0; i < mesh.triangles.size(); ++i) {
    if (mesh.materialId(i) != material) continue;
    Mesh::Triangle triangle = mesh.triangles[i];
    for (std::uint32_t& corner : triangle) {
      if (numbers[corner] == unused) {
        numbers[corner] = static_cast<std::uint32_t>(result.positions.size());
        result.positions.push_back(mesh.positions[corner]);
        if (!mesh.normals.empty()) result.normals.push_back(mesh.normals[corner]);
        if (!mesh.texCoords.empty()) result.texCoords.push_back(mesh.texCoords[corner]);
      }
      corner = numbers[corner];
    }
    result.triangles.push_back(triangle);
  }
  return result;
}

template <class Item>
int appendAccessor(tinygltf::Model& model, const std::vector<Item>& items, std::size_t stride, int componentType,
                   int type, int target) {
  tinygltf::Accessor accessor;
  accessor.bufferView = appendBytes(model, items.data(), items.size() * sizeof(Item), target);
  accessor.componentType = componentType;
  accessor.type = type;
  accessor.count = stride == 0 ? items.size() : items.size() * sizeof(Item) / stride;
  model.bufferViews.back().byteStride = stride;
  model.accessors.push_back(accessor);
  return static_cast<int>(model.accessors.size()) - 1;
}

int appendPositions(tinygltf::Model& model, const Mesh& mesh, const CompactGeometry& grid) {
  std::vector<std::uint16_t> items;
  std::array<double, 3> low{STEPS, STEPS, STEPS}, high{};
  for (const Point3& position : mesh.positions) {
    const Point3 place = (position - grid.offset) * (1.0F / grid.scale);
    for (int axis = 0; axis < 3; ++axis) {
      const float step = std::clamp(std::round(place[axis]), 0.0F, STEPS);
      items.push_back(static_cast<std::uint16_t>(step));
      const auto i = static_cast<std::size_t>(axis);
      low[i] = std::min<double>(low[i], static_cast<double>(step));
      high[i] = std::max<double>(high[i], static_cast<double>(step));
    }
    items.push_back(0);
  }
  const int index = appendAccessor(model, items, 8, TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT, TINYGLTF_TYPE_VEC3,
                                   TINYGLTF_TARGET_ARRAY_BUFFER);
  model.accessors.back().minValues.assign(low.begin(), low.end());
  model.accessors.back().maxValues.assign(high.begin(), high.end());
  return index;
}

int appendNormals(tinygltf::Model& model, const Mesh& mesh) {
  std::vector<std::int8_t> items;
  for (const Point3& normal : mesh.normals) {
    for (const float value : {normal.x, normal.y, normal.z}) {
      items.push_back(static_cast<std::int8_t>(std::clamp(std::round(value * 127.0F), -127.0F, 127.0F)));
    }
    items.push_back(0);
  }
  const int index =
      appendAccessor(model, items, 4, TINYGLTF_COMPONENT_TYPE_BYTE, TINYGLTF_TYPE_VEC3, TINYGLTF_TARGET_ARRAY_BUFFER);
  model.accessors.back().normalized = true;
  return index;
}

int appendTexCoords(tinygltf::Model& model, const Mesh& mesh) {
  const auto fits = [](float value) { return value >= 0.0F && value <= 1.0F; };
  const bool small = std::all_of(mesh.texCoords.begin(), mesh.texCoords.end(),
                                 [&](const TexCoord& coord) { return fits(coord.u) && fits(coord.v); });
  if (!small) {
    std::vector<float> items;
    for (const TexCoord& coord : mesh.texCoords) items.insert(items.end(), {coord.u, 1.0F - coord.v});
    return appendAccessor(model, items, 8, TINYGLTF_COMPONENT_TYPE_FLOAT, TINYGLTF_TYPE_VEC2,
                          TINYGLTF_TARGET_ARRAY_BUFFER);
  }
  std::vector<std::uint16_t> items;
  for (const TexCoord& coord : mesh.texCoords) {
    for (const float value : {coord.u, 1.0F - coord.v}) {
      items.push_back(static_cast<std::uint16_t>(std::round(value * STEPS)));
    }
  }
  const int index = appendAccessor(model, items, 4, TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT, TINYGLTF_TYPE_VEC2,
                                   TINYGLTF_TARGET_ARRAY_BUFFER);
  model.accessors.back().normalized = true;
  return index;
}

int appendTriangles(tinygltf::Model& model, const Mesh& mesh) {
  constexpr int target = TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER;
  std::vector<std::uint32_t> wide;
  for (const Mesh::Triangle& triangle : mesh.triangles) wide.insert(wide.end(), triangle.begin(), triangle.end());
  // The highest 16-bit number may not name a vertex.
  if (mesh.positions.size() > 65535) {
    return appendAccessor(model, wide, 0, TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT, TINYGLTF_TYPE_SCALAR, target);
  }
  const std::vector<std::uint16_t> narrow(wide.begin(), wide.end());
  return appendAccessor(model, narrow, 0, TINYGLTF_COMPONENT_TYPE_UNSIGNED_SHORT, TINYGLTF_TYPE_SCALAR, target);
}

}  // namespace

CompactGeometry appendCompactGeometry(tinygltf::Model& model, const Mesh& mesh) {
  CompactGeometry result;
  Box3 box;
  for (const Point3& position : mesh.positions) box += position;
  const Point3 size = box.pmax - box.pmin;
  result.offset = box.pmin;
  result.scale = std::max({size.x, size.y, size.z, 1e-6F}) / STEPS;

  std::set<std::uint16_t> materials;
  for (std::size_t i = 0; i < mesh.triangles.size(); ++i) materials.insert(mesh.materialId(i));
  for (const std::uint16_t material : materials) {
    const Mesh own = part(mesh, material);
    tinygltf::Primitive primitive;
    primitive.mode = TINYGLTF_MODE_TRIANGLES;
    primitive.material = material;
    primitive.attributes["POSITION"] = appendPositions(model, own, result);
    if (!own.normals.empty()) primitive.attributes["NORMAL"] = appendNormals(model, own);
    if (!own.texCoords.empty()) primitive.attributes["TEXCOORD_0"] = appendTexCoords(model, own);
    primitive.indices = appendTriangles(model, own);
    result.primitives.push_back(primitive);
  }
  model.extensionsUsed.emplace_back(EXTENSION);
  model.extensionsRequired.emplace_back(EXTENSION);
  return result;
}

}  // namespace host
