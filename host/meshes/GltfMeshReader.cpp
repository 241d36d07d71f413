#include "host/meshes/GltfMeshReader.h"

#include <matrix3.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "host/meshes/GltfDocument.h"
#include "host/meshes/UnreadableMesh.h"

namespace host {

namespace {

using Json = GltfDocument::Json;

/// Nodes may show a mesh over and over; this much may come of a small file, and so much more of each of its bytes.
constexpr std::size_t ALWAYS_MADE = 50'000;
constexpr std::size_t MADE_OF_A_BYTE = 2;

enum PrimitiveMode : std::size_t { TRIANGLES = 4, STRIP, FAN };

const Matrix3 FROM_METRES_Y_UP({100, 0, 0}, {0, 0, 100}, {0, -100, 0}, {0, 0, 0});

/// `defaults` where the key is absent.
template <std::size_t Count>
std::array<float, Count> numbers(const Json& object, const char* key, std::array<float, Count> defaults) {
  const Json& list = GltfDocument::list(object, key);
  if (list.empty()) return defaults;
  if (list.size() != Count) throw UnreadableMesh(std::string("the glTF file has a bad \"") + key + "\"");
  for (std::size_t i = 0; i < Count; ++i) {
    const double number = list[i].is_number() ? list[i].get<double>() : std::numeric_limits<double>::infinity();
    if (!(std::abs(number) < 1e30)) throw UnreadableMesh(std::string("the glTF file has a bad \"") + key + "\"");
    defaults[i] = static_cast<float>(number);
  }
  return defaults;
}

/// The rows of the rotation, scaled; x y z w.
Matrix3 fromParts(const std::array<float, 3>& t, const std::array<float, 4>& q, const std::array<float, 3>& s) {
  const auto [x, y, z, w] = q;
  return {Point3(1 - 2 * (y * y + z * z), 2 * (x * y + z * w), 2 * (x * z - y * w)) * s[0],
          Point3(2 * (x * y - z * w), 1 - 2 * (x * x + z * z), 2 * (y * z + x * w)) * s[1],
          Point3(2 * (x * z + y * w), 2 * (y * z - x * w), 1 - 2 * (x * x + y * y)) * s[2], Point3(t[0], t[1], t[2])};
}

Matrix3 localTransform(const Json& node) {
  if (node.contains("matrix")) {
    const auto m = numbers<16>(node, "matrix", {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
    return {{m[0], m[1], m[2]}, {m[4], m[5], m[6]}, {m[8], m[9], m[10]}, {m[12], m[13], m[14]}};
  }
  return fromParts(numbers<3>(node, "translation", {0, 0, 0}), numbers<4>(node, "rotation", {0, 0, 0, 1}),
                   numbers<3>(node, "scale", {1, 1, 1}));
}

/// What normals are carried by: the cofactors, which stay right under mirroring and uneven scaling.
Matrix3 forNormals(const Matrix3& m) {
  return {m.GetRow(1) ^ m.GetRow(2), m.GetRow(2) ^ m.GetRow(0), m.GetRow(0) ^ m.GetRow(1), Point3()};
}

bool mirrors(const Matrix3& m) { return (m.GetRow(0) ^ m.GetRow(1)) % m.GetRow(2) < 0.0F; }

std::vector<Mesh::Triangle> cut(const std::vector<std::uint32_t>& corners, std::size_t mode) {
  std::vector<Mesh::Triangle> triangles;
  if (mode == TRIANGLES) {
    for (std::size_t i = 0; i + 2 < corners.size(); i += 3) {
      triangles.push_back({corners[i], corners[i + 1], corners[i + 2]});
    }
    return triangles;
  }
  for (std::size_t i = 0; i + 2 < corners.size(); ++i) {
    if (mode == FAN) {
      triangles.push_back({corners[0], corners[i + 1], corners[i + 2]});
    } else {
      const std::size_t odd = i % 2;
      triangles.push_back({corners[i + odd], corners[i + 1 - odd], corners[i + 2]});
    }
  }
  return triangles;
}

std::vector<std::uint32_t> consecutive(std::size_t count) {
  std::vector<std::uint32_t> corners(count);
  for (std::size_t i = 0; i < count; ++i) corners[i] = static_cast<std::uint32_t>(i);
  return corners;
}

/// Walks the default scene and gathers what it meets into one mesh.
class SceneMerger {
 public:
  SceneMerger(const GltfDocument& document, std::size_t fileSize)
      : document_(document), mostMade_(ALWAYS_MADE + MADE_OF_A_BYTE * fileSize) {}

  Mesh merge() {
    visited_.assign(GltfDocument::list(document_.root(), "nodes").size(), false);
    pushRoots();
    while (!waiting_.empty()) {
      const auto [node, parent] = waiting_.back();
      waiting_.pop_back();
      visit(node, parent);
    }
    return std::move(mesh_);
  }

 private:
  void pushRoots() {
    const bool hasScenes = !GltfDocument::list(document_.root(), "scenes").empty();
    if (hasScenes) {
      const std::size_t scene = GltfDocument::optionalIndex(document_.root(), "scene").value_or(0);
      push(GltfDocument::list(document_.item("scenes", scene), "nodes"), FROM_METRES_Y_UP);
      return;
    }
    for (std::size_t i : nodesWithoutParent()) waiting_.emplace_back(i, FROM_METRES_Y_UP);
  }

  std::vector<std::size_t> nodesWithoutParent() const {
    const Json& nodes = GltfDocument::list(document_.root(), "nodes");
    std::vector<bool> isChild(nodes.size(), false);
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      for (const Json& child : GltfDocument::list(document_.item("nodes", i), "children")) {
        if (child.is_number_unsigned() && child.get<std::size_t>() < isChild.size())
          isChild[child.get<std::size_t>()] = true;
      }
    }
    std::vector<std::size_t> roots;
    for (std::size_t i = 0; i < nodes.size(); ++i) {
      if (!isChild[i]) roots.push_back(i);
    }
    return roots;
  }

  void push(const Json& nodes, const Matrix3& parent) {
    for (const Json& node : nodes) {
      if (!node.is_number_unsigned()) throw UnreadableMesh("the glTF file has a bad list of nodes");
      waiting_.emplace_back(node.get<std::size_t>(), parent);
    }
  }

  void visit(std::size_t index, const Matrix3& parent) {
    const Json& node = document_.item("nodes", index);
    if (visited_[index]) throw UnreadableMesh("the glTF file uses a node twice");
    visited_[index] = true;
    const Matrix3 transform = localTransform(node) * parent;
    if (const auto mesh = GltfDocument::optionalIndex(node, "mesh")) {
      for (const Json& primitive : GltfDocument::list(document_.item("meshes", *mesh), "primitives")) {
        if (!primitive.is_object()) throw UnreadableMesh("the glTF file has a bad \"primitives\"");
        append(primitive, transform);
      }
    }
    push(GltfDocument::list(node, "children"), transform);
  }

  void append(const Json& primitive, const Matrix3& transform) {
    const std::size_t mode = GltfDocument::optionalIndex(primitive, "mode").value_or(TRIANGLES);
    if (mode < TRIANGLES || mode > FAN) return;
    const std::size_t first = mesh_.positions.size();
    const std::size_t count = appendVertices(primitive, transform);
    const std::vector<Mesh::Triangle> triangles = cut(corners(primitive, count), mode);
    const std::size_t material = GltfDocument::optionalIndex(primitive, "material").value_or(0);
    if (material > std::numeric_limits<std::uint16_t>::max())
      throw UnreadableMesh("the glTF file has too many materials");
    const std::size_t before = mesh_.triangles.size();
    appendTriangles(triangles, first, count, mirrors(transform));
    appendMaterial(before, static_cast<std::uint16_t>(material));
  }

  /// Before room is made for them.
  static void requireFit(std::size_t added, std::size_t there, std::size_t most, const char* problem) {
    if (there > most || added > most - there) throw UnreadableMesh(problem);
  }

  void requireTriangles(std::size_t corners) const {
    const std::size_t there = 3 * mesh_.triangles.size();
    requireFit(corners, there, 3 * MOST_TRIANGLES, "the mesh is too large");
    requireFit(corners, there, 3 * mostMade_, TOO_OFTEN);
  }

  void requireVertices(std::size_t count) const {
    requireFit(count, mesh_.positions.size(), MOST_VERTICES, "the mesh is too large");
    requireFit(count, mesh_.positions.size(), mostMade_, TOO_OFTEN);
  }

  std::vector<std::uint32_t> corners(const Json& primitive, std::size_t count) const {
    const auto indices = GltfDocument::optionalIndex(primitive, "indices");
    if (!indices) return consecutive(count);
    requireTriangles(document_.count(*indices));
    return document_.indices(*indices);
  }

  std::size_t appendVertices(const Json& primitive, const Matrix3& transform) {
    const auto attributes = primitive.find("attributes");
    if (attributes == primitive.end()) throw UnreadableMesh("the glTF file has triangles without positions");
    const auto positions = GltfDocument::optionalIndex(*attributes, "POSITION");
    if (!positions) throw UnreadableMesh("the glTF file has triangles without positions");
    requireVertices(document_.count(*positions));
    const std::vector<Point3> points = document_.points(*positions);
    for (const Point3& p : points) mesh_.positions.push_back(transform.PointTransform(p));
    appendNormals(*attributes, transform);
    appendTexCoords(*attributes);
    return points.size();
  }

  /// A part without normals is left with none of any length, which completeMesh then fills.
  void appendNormals(const Json& attributes, const Matrix3& transform) {
    if (const auto accessor = GltfDocument::optionalIndex(attributes, "NORMAL")) {
      mesh_.normals.resize(mesh_.positions.size() - requireCount(document_.count(*accessor)));
      const std::vector<Point3> normals = document_.points(*accessor);
      const Matrix3 carry = forNormals(transform);
      const float side = mirrors(transform) ? -1.0F : 1.0F;
      for (const Point3& n : normals) mesh_.normals.push_back(carry.VectorTransform(n).Normalize() * side);
    }
    mesh_.normals.resize(mesh_.positions.size());
  }

  void appendTexCoords(const Json& attributes) {
    if (const auto accessor = GltfDocument::optionalIndex(attributes, "TEXCOORD_0")) {
      mesh_.texCoords.resize(mesh_.positions.size() - requireCount(document_.count(*accessor)));
      const std::vector<TexCoord> coords = document_.texCoords(*accessor);
      for (const TexCoord& coord : coords) mesh_.texCoords.push_back({coord.u, 1.0F - coord.v});
    }
    if (!mesh_.texCoords.empty()) mesh_.texCoords.resize(mesh_.positions.size());
  }

  /// `count` where it is as many as the positions appended last; asked before room is made for them.
  std::size_t requireCount(std::size_t count) const {
    if (count != mesh_.positions.size() - partStart_) throw UnreadableMesh("the glTF file has parts that do not match");
    return count;
  }

  void appendTriangles(const std::vector<Mesh::Triangle>& triangles, std::size_t first, std::size_t count, bool flip) {
    requireTriangles(3 * triangles.size());
    for (const Mesh::Triangle& triangle : triangles) {
      const bool inside = triangle[0] < count && triangle[1] < count && triangle[2] < count;
      if (!inside) throw UnreadableMesh("the glTF file has triangles without positions");
      const auto base = static_cast<std::uint32_t>(first);
      Mesh::Triangle moved{triangle[0] + base, triangle[1] + base, triangle[2] + base};
      if (flip) std::swap(moved[1], moved[2]);
      mesh_.triangles.push_back(moved);
    }
    partStart_ = mesh_.positions.size();
  }

  void appendMaterial(std::size_t before, std::uint16_t material) {
    if (material == 0 && mesh_.materialIds.empty()) return;
    mesh_.materialIds.resize(before);
    mesh_.materialIds.resize(mesh_.triangles.size(), material);
  }

  static constexpr const char* TOO_OFTEN = "the glTF file shows its meshes too often";

  const GltfDocument& document_;
  std::size_t mostMade_;
  Mesh mesh_;
  std::vector<bool> visited_;
  std::vector<std::pair<std::size_t, Matrix3>> waiting_;
  /// Where the vertices of the primitive in hand begin.
  std::size_t partStart_ = 0;
};

}  // namespace

bool looksLikeGlb(std::string_view bytes) { return bytes.substr(0, 4) == "glTF"; }

Mesh readGlb(std::string_view bytes) {
  const GltfDocument document(bytes);
  return SceneMerger(document, bytes.size()).merge();
}

}  // namespace host
