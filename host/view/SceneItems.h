#pragma once

#include <vector>

#include "host/rays/ViewItem.h"

namespace host {

class Scene;

/// What of the scene is seen and hit, in the order of its nodes. Reads meshes and textures that nobody needed before;
/// what cannot be read is reported to the listener, and so is what cannot be shown where it is.
std::vector<ViewItem> viewItems(const Scene& scene);

}  // namespace host
