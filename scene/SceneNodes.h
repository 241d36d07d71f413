#pragma once

#include <string>

class INode;

namespace ZORVEL {

/// Nodes as every build makes them.
class SceneNodes {
 public:
  SceneNodes() = delete;

  /// A node under `parent` that shows the mesh file, on the character layer, at the world's origin. Nodes of the same
  /// file share one proxy object. Null when the host has no proxy objects.
  static INode* AddProxy(const std::wstring& meshFile, const wchar_t* name, INode* parent);
  /// The circle that a character hangs on; null when the host cannot make it.
  static INode* AddParent(const std::wstring& name);
  /// Makes the layer when it is missing.
  static void AddToCharacterLayer(INode* node);
};

}  // namespace ZORVEL
