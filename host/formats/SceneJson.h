#pragma once

#include <filesystem>
#include <string>

namespace host {

class Scene;
class Units;

constexpr const char* SCENE_FORMAT = "zorvel-scene";
constexpr int SCENE_FORMAT_VERSION = 1;

/// The scene as JSON text, with all that is needed to open it again: units, layers, and the tree of nodes with
/// transforms, user properties, layer, group, selection, object and material. Lengths are in scene units; a matrix is
/// four rows of three; "transform" is the place in the world and "local" the one in the parent, of which only "local"
/// is read back.
std::string sceneJson(Scene& scene, const Units& units);

/// Writes it whole or not at all. Answers why it could not, or nothing. The listener is told when it became too much to
/// be opened again.
std::string writeSceneJson(Scene& scene, const Units& units, const std::filesystem::path& file);

}  // namespace host
