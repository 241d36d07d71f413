#pragma once

#include <imtl.h>
#include <matrix3.h>
#include <object.h>

#include <cstddef>
#include <vector>

#include "host/scene/Node.h"
#include "host/services/Ref.h"

namespace host {

/// A node before it is in a scene.
struct NodeContent {
  MSTR name;
  Ref<Object> object;
  Ref<Mtl> material;
  Matrix3 local = Matrix3(TRUE);
  Matrix3 offset = Matrix3(TRUE);
  Node::Properties properties;
  /// In the list of layers.
  std::size_t layer = 0;
  bool groupHead = false;
  bool groupMember = false;
  bool selected = false;
  std::vector<NodeContent> children;
};

/// All that a scene is made of.
struct SceneContent {
  /// The default layer first; no two of the same name, whatever the case.
  std::vector<MSTR> layers;
  std::vector<NodeContent> nodes;
};

}  // namespace host
