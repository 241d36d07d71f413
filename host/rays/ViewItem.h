#pragma once

#include <matrix3.h>

#include <memory>
#include <string>
#include <vector>

#include "host/meshes/Mesh.h"
#include "host/rays/Surface.h"

class INode;

namespace host {

/// One thing to be seen and hit.
struct ViewItem {
  /// Null for nothing to see.
  std::shared_ptr<const Mesh> mesh;
  /// Object space to the world, in scene units; may mirror and scale unevenly. One without volume hides the item.
  Matrix3 toWorld = Matrix3(TRUE);
  /// By material id, modulo their number; none means plain clay.
  std::vector<Surface> surfaces;
  /// Handed to the filters of picks, never looked into. Null where no node stands behind it.
  INode* node = nullptr;
  /// Written over the item in a picture, for a stand-in of something that cannot be shown.
  std::wstring label;
};

}  // namespace host
