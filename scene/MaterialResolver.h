#pragma once

#include <string>
#include <vector>

#include "model/MaterialResult.h"

class INode;

namespace ZORVEL {

struct MaterialSearch {
  /// Null when the record names no material.
  const wchar_t* name;
  /// In the order in which they are tried.
  std::vector<std::wstring> libraries;
  /// Ends in a separator.
  std::wstring mapsFolder;
};

/// Gives nodes their materials by name: one that the scene already has, else one from the repository's libraries, whose
/// textures are pointed at the repository's folder of textures.
class MaterialResolver {
 public:
  MaterialResolver() = delete;

  /// Where it was found; the answer says why the node was left without one. The library that was loaded last stays the
  /// host's current one.
  static MaterialResult Resolve(const MaterialSearch& search, INode& node);
};

}  // namespace ZORVEL
