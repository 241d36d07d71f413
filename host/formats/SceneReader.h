#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "host/scene/SceneContent.h"
#include "host/services/Units.h"

namespace host {

/// What a scene file says, ready to take the place of the scene.
struct SceneReading {
  Units units;
  SceneContent content;
};

constexpr std::size_t MOST_SCENE_BYTES = std::size_t(64) << 20U;

/// Why the text of a scene is too much to be opened within seconds and some hundred megabytes; empty when it is not.
/// Asked before anything is made of it.
std::string excessOf(std::string_view text);

/// Reads what `sceneJson` writes. Throws Unreadable or what the JSON library throws.
SceneReading readScene(const nlohmann::ordered_json& document);

}  // namespace host
