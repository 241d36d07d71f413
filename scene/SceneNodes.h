#pragma once

#include <string>

#include "scene/BuildReport.h"

class INode;

namespace ZORVEL {

/// A node that shows a mesh file, or why there is none.
struct ProxyNode {
  INode* node = nullptr;
  MeshState mesh = MeshState::Found;
  /// Only without a node.
  OmissionReason problem = OmissionReason::ProxyClassMissing;
};

/// Nodes as every build makes them.
class SceneNodes {
 public:
  SceneNodes() = delete;

  /// A node under `parent` that shows the mesh file, on the character layer, at the world's origin. Nodes of the same
  /// file share one proxy object; only for a new one the disk is asked.
  static ProxyNode AddProxy(const std::wstring& meshFile, const wchar_t* name, INode& parent);
  /// The circle that a character hangs on; null when the host cannot make it.
  static INode* AddParent(const std::wstring& name);
  /// Makes the layer when it is missing; false when the host has none.
  static bool AddToCharacterLayer(INode* node);
};

}  // namespace ZORVEL
