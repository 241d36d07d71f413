#pragma once

#include <filesystem>
#include <string>

#include "host/meshes/Mesh.h"

namespace host {

/// Compact is about half as large and good enough to be looked at; see CompactGeometry.
enum class VertexPrecision { Full, Compact };

/// The mesh as the bytes of a glTF binary file: metres, Y up, v downward, one primitive for each material id. Empty for
/// a mesh without triangles.
std::string glbBytes(const Mesh& mesh, VertexPrecision precision = VertexPrecision::Full);

/// Writes the mesh as glTF binary, whole or not at all. Answers an empty text, or what went wrong in one line.
[[nodiscard]] std::string writeMeshFile(const Mesh& mesh, const std::filesystem::path& file,
                                        VertexPrecision precision = VertexPrecision::Full);

}  // namespace host
