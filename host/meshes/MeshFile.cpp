#include "host/meshes/MeshFile.h"

#include <cmath>
#include <exception>

#include "host/files/RegularFile.h"
#include "host/meshes/GltfMeshReader.h"
#include "host/meshes/ObjMeshReader.h"
#include "host/meshes/UnreadableMesh.h"

namespace host {

namespace {

Mesh meshFrom(std::string_view bytes) {
  if (bytes.empty()) throw UnreadableMesh("the file is empty");
  if (looksLikeGlb(bytes)) return readGlb(bytes);
  if (looksLikeObj(bytes)) return readObj(bytes);
  throw UnreadableMesh("not a mesh that this host reads (it reads glTF binary and OBJ)");
}

void requireSensible(const Mesh& mesh) {
  if (mesh.triangles.empty()) throw UnreadableMesh("the file holds no triangles");
  // Beyond this a square in single precision is no longer finite, and nothing could be measured or hit.
  constexpr float farthest = 1e12F;
  for (const Point3& p : mesh.positions) {
    const bool near = std::abs(p.x) <= farthest && std::abs(p.y) <= farthest && std::abs(p.z) <= farthest;
    if (!near) throw UnreadableMesh("a position is not a usable number");
  }
}

std::string readBytes(const std::filesystem::path& path) {
  RegularFile file(path);
  if (!file.isOpen()) throw UnreadableMesh(file.problem());
  std::string bytes;
  if (file.size() <= LARGEST_MESH_FILE) bytes.reserve(static_cast<std::size_t>(file.size()) + 1);
  if (!file.readUpTo(LARGEST_MESH_FILE + 1, bytes)) throw UnreadableMesh("the file cannot be read");
  if (bytes.size() > LARGEST_MESH_FILE) throw UnreadableMesh("the file is larger than 128 MiB");
  return bytes;
}

/// Runs `make`, turning whatever it throws into the one line that the caller shows.
template <class Make>
MeshResult reading(Make make) {
  try {
    auto mesh = std::make_shared<Mesh>(make());
    requireSensible(*mesh);
    completeMesh(*mesh);
    return {std::move(mesh), {}, false};
  } catch (const UnreadableMesh& unreadable) {
    return {nullptr, unreadable.what(), false};
  } catch (const std::bad_alloc&) {
    return {nullptr, "not enough memory for this mesh", true};
  } catch (const std::exception&) {
    return {nullptr, "the file is damaged", false};
  }
}

}  // namespace

MeshResult readMesh(std::string_view bytes) {
  return reading([bytes] { return meshFrom(bytes); });
}

MeshResult readMeshFile(const std::filesystem::path& file) {
  return reading([&file] { return meshFrom(readBytes(file)); });
}

}  // namespace host
