#pragma once

#include <memory>

#include "host/meshes/Mesh.h"

namespace fuzz {

/// Prepares everything in the host's scene for being drawn and sends a few rays through it.
void lookAtScene();
/// The same of one mesh, unless it is so large that only the ray library would be busy.
void lookAt(const std::shared_ptr<const host::Mesh>& mesh);

}  // namespace fuzz
