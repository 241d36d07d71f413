#pragma once

#include <nlohmann/json.hpp>

#include "host/scene/SceneContent.h"
#include "host/services/Units.h"

namespace host {

/// What a scene file says, ready to take the place of the scene.
struct SceneReading {
  Units units;
  SceneContent content;
};

/// Reads what `sceneJson` writes. Throws Unreadable or what the JSON library throws.
SceneReading readScene(const nlohmann::ordered_json& document);

}  // namespace host
