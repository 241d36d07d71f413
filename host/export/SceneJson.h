#pragma once

#include <filesystem>
#include <string>

namespace host {

class Scene;

/// The scene as JSON text: units, layers, and the tree of nodes with transforms, user properties, layer, group, mesh
/// file and material with its texture files. Lengths are in scene units; a matrix is four rows of three.
std::string sceneJson(Scene& scene);

/// Writes it whole or not at all. Answers why it could not, or nothing.
std::string writeSceneJson(Scene& scene, const std::filesystem::path& file);

}  // namespace host
