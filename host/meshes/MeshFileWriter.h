#pragma once

#include <filesystem>
#include <string>

#include "host/meshes/Mesh.h"

namespace host {

/// The mesh as the bytes of a glTF binary file: metres, Y up, v downward, one primitive for each material id. Empty for
/// a mesh without triangles.
std::string glbBytes(const Mesh& mesh);

/// Writes the mesh as glTF binary, whole or not at all. Answers an empty text, or what went wrong in one line.
[[nodiscard]] std::string writeMeshFile(const Mesh& mesh, const std::filesystem::path& file);

}  // namespace host
