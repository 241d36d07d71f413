#pragma once

#include <filesystem>
#include <string>

namespace host {

class Node;

/// Writes everything below `root` as glTF binary: hierarchy, names, local transforms, user properties (as "extras") and
/// materials with their textures inside. A mesh is stored once, however many nodes show it in whatever materials. Scene
/// units and Z up are turned into metres and Y up by one node on top. The file is written whole or not at all. Answers
/// an empty text, or what went wrong in one line.
[[nodiscard]] std::string writeGltf(Node& root, double metresPerUnit, const std::filesystem::path& file);

}  // namespace host
