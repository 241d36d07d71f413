#include "host/meshes/GltfGeometry.h"

#include <cstring>
#include <exception>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace host {

namespace {

static_assert(sizeof(Point3) == 12 && sizeof(TexCoord) == 8 && sizeof(Mesh::Triangle) == 12,
              "vertices are written as they lie in memory");

template <class Item>
int appendAccessor(tinygltf::Model& model, const std::vector<Item>& items, int componentType, int type, int target) {
  tinygltf::Accessor accessor;
  accessor.bufferView = appendBytes(model, items.data(), items.size() * sizeof(Item), target);
  accessor.componentType = componentType;
  accessor.type = type;
  accessor.count = items.size();
  model.accessors.push_back(accessor);
  return static_cast<int>(model.accessors.size()) - 1;
}

template <class Item>
int appendVertices(tinygltf::Model& model, const std::vector<Item>& items, int type) {
  return appendAccessor(model, items, TINYGLTF_COMPONENT_TYPE_FLOAT, type, TINYGLTF_TARGET_ARRAY_BUFFER);
}

int appendPositions(tinygltf::Model& model, const Mesh& mesh) {
  const int index = appendVertices(model, mesh.positions, TINYGLTF_TYPE_VEC3);
  Box3 box;
  for (const Point3& position : mesh.positions) box += position;
  tinygltf::Accessor& accessor = model.accessors.back();
  accessor.minValues = {box.pmin.x, box.pmin.y, box.pmin.z};
  accessor.maxValues = {box.pmax.x, box.pmax.y, box.pmax.z};
  return index;
}

int appendTexCoords(tinygltf::Model& model, std::vector<TexCoord> coords) {
  for (TexCoord& coord : coords) coord.v = 1.0F - coord.v;
  return appendVertices(model, coords, TINYGLTF_TYPE_VEC2);
}

std::map<std::uint16_t, std::vector<Mesh::Triangle>> trianglesByMaterial(const Mesh& mesh) {
  std::map<std::uint16_t, std::vector<Mesh::Triangle>> groups;
  for (std::size_t i = 0; i < mesh.triangles.size(); ++i) groups[mesh.materialId(i)].push_back(mesh.triangles[i]);
  return groups;
}

int appendTriangles(tinygltf::Model& model, const std::vector<Mesh::Triangle>& triangles) {
  const int index = appendAccessor(model, triangles, TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT, TINYGLTF_TYPE_SCALAR,
                                   TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER);
  model.accessors.back().count = triangles.size() * 3;
  return index;
}

void appendWord(std::string& bytes, std::size_t word) {
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(static_cast<unsigned char>(word >> shift));
}

std::size_t padded(std::size_t size) { return (size + 3) / 4 * 4; }

/// A chunk's header; its content and what fills it up follow.
void appendChunkHeader(std::string& bytes, std::size_t size, std::size_t type) {
  appendWord(bytes, padded(size));
  appendWord(bytes, type);
}

/// The document's JSON, for a buffer of that size. The buffer itself is kept away from the library, which would copy it
/// several times.
std::string jsonOf(const tinygltf::Model& model, std::size_t bufferSize) {
  constexpr std::size_t beforeJson = 20;
  std::ostringstream stream;
  tinygltf::TinyGLTF writer;
  if (!writer.WriteGltfSceneToStream(&model, stream, false, true)) return {};
  const std::string glb = stream.str();
  auto json = nlohmann::json::parse(glb.begin() + beforeJson, glb.end());
  if (bufferSize > 0) json["buffers"][0]["byteLength"] = bufferSize;
  return json.dump();
}

std::string container(const std::string& json, const std::vector<unsigned char>& binary) {
  constexpr std::size_t header = 12;
  constexpr std::size_t chunkHeader = 8;
  const std::size_t binaryChunk = binary.empty() ? 0 : chunkHeader + padded(binary.size());
  const std::size_t size = header + chunkHeader + padded(json.size()) + binaryChunk;
  std::string bytes = "glTF";
  bytes.reserve(size);
  appendWord(bytes, 2);
  appendWord(bytes, size);
  appendChunkHeader(bytes, json.size(), 0x4E4F534A);
  bytes += json;
  bytes.resize(header + chunkHeader + padded(json.size()), ' ');
  if (binary.empty()) return bytes;
  appendChunkHeader(bytes, binary.size(), 0x004E4942);
  bytes.append(binary.begin(), binary.end());
  bytes.resize(size, '\0');
  return bytes;
}

}  // namespace

int appendBytes(tinygltf::Model& model, const void* bytes, std::size_t size, int target) {
  if (model.buffers.empty()) model.buffers.emplace_back();
  std::vector<unsigned char>& data = model.buffers.front().data;
  data.resize((data.size() + 3) / 4 * 4);
  tinygltf::BufferView view;
  view.buffer = 0;
  view.byteOffset = data.size();
  view.byteLength = size;
  view.target = target;
  const auto* first = static_cast<const unsigned char*>(bytes);
  data.insert(data.end(), first, first + size);
  model.bufferViews.push_back(view);
  return static_cast<int>(model.bufferViews.size()) - 1;
}

std::vector<tinygltf::Primitive> appendGeometry(tinygltf::Model& model, const Mesh& mesh) {
  tinygltf::Primitive common;
  common.mode = TINYGLTF_MODE_TRIANGLES;
  common.attributes["POSITION"] = appendPositions(model, mesh);
  if (!mesh.normals.empty()) common.attributes["NORMAL"] = appendVertices(model, mesh.normals, TINYGLTF_TYPE_VEC3);
  if (!mesh.texCoords.empty()) common.attributes["TEXCOORD_0"] = appendTexCoords(model, mesh.texCoords);

  std::vector<tinygltf::Primitive> primitives;
  for (const auto& [material, triangles] : trianglesByMaterial(mesh)) {
    common.material = material;
    common.indices = appendTriangles(model, triangles);
    primitives.push_back(common);
  }
  return primitives;
}

std::string toGlb(tinygltf::Model& model) {
  constexpr std::size_t limit = 0xF0000000U;
  std::vector<unsigned char> binary;
  if (!model.buffers.empty()) binary.swap(model.buffers.front().data);
  if (binary.size() > limit) return {};
  model.asset.version = "2.0";
  model.asset.generator = "zorvel";
  try {
    const std::string json = jsonOf(model, binary.size());
    return json.empty() ? std::string() : container(json, binary);
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace host
