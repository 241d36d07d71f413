#pragma once

#include <string>

class INode;

namespace ZORVEL {

struct BuildContext;

/// Gives nodes their materials by name: one that the scene already has, else one from the repository's libraries, whose
/// textures are pointed at the repository's folder of textures.
class MaterialResolver {
 public:
  MaterialResolver() = delete;

  /// For body, clothing and the character's own assets. A name that is found nowhere leaves the node without a
  /// material; a null node or name does nothing.
  static void Resolve(const wchar_t* materialName, const std::wstring& firstLibrary, INode* node,
                      const BuildContext& context);
  /// For assets that all characters share: the fallback library is the repository's.
  static void ResolveGlobal(const wchar_t* materialName, const std::wstring& firstLibrary, INode* node,
                            const BuildContext& context);
};

}  // namespace ZORVEL
