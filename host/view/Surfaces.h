#pragma once

#include <imtl.h>

#include <vector>

#include "host/rays/Surface.h"

namespace host {

/// How the host draws a material, by face material id: one surface, or one for each slot of a multi/sub-object
/// material. Null gives none, which means plain clay. Textures are read now; one that cannot be is reported to the
/// listener and left out.
std::vector<Surface> surfacesOf(Mtl* material);

}  // namespace host
