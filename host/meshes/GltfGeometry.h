#pragma once

#include <tiny_gltf.h>

#include <string>
#include <vector>

#include "host/meshes/Mesh.h"

namespace host {

/// Appends the bytes as a buffer view of the document's only buffer, aligned to four. Answers its index.
int appendBytes(tinygltf::Model& model, const void* bytes, std::size_t size, int target = 0);

/// Appends the mesh's vertices and triangles, in the mesh's own units and axes, v turned downward. Answers one
/// primitive for each material id, ordered by id; its `material` holds the id, which the caller replaces when ids and
/// indices differ.
std::vector<tinygltf::Primitive> appendGeometry(tinygltf::Model& model, const Mesh& mesh);

/// The document as glTF binary; empty when it cannot be written (text that is not UTF-8, or four gigabytes and more).
std::string toGlb(tinygltf::Model& model);

}  // namespace host
