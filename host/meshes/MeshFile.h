#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "host/meshes/Mesh.h"

namespace host {

/// What came of reading a mesh: the mesh, or one line that says why there is none. Never both, never neither.
struct MeshResult {
  std::shared_ptr<const Mesh> mesh;
  std::string error;
  /// Whether the reason lies elsewhere than in the file.
  bool mayPass = false;
};

/// In bytes.
constexpr std::size_t LARGEST_MESH_FILE = std::size_t{128} << 20U;

/// Tells the format by its content, whatever the file is called: glTF binary, or OBJ. Any bytes may be given.
MeshResult readMesh(std::string_view bytes);

/// Reads that one file and no other, so a mesh that keeps its vertices elsewhere is refused.
MeshResult readMeshFile(const std::filesystem::path& file);

}  // namespace host
