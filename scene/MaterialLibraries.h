#pragma once

#include <string>
#include <vector>

namespace ZORVEL {

struct BuildContext;

/// The library files that may hold a material, in the order in which they are searched.
class MaterialLibraries {
 public:
  MaterialLibraries() = delete;

  static std::vector<std::wstring> OfSkin(const BuildContext& context);
  /// Of a clothing or an asset of the character's own. The folder is the element's.
  static std::vector<std::wstring> OfElement(const BuildContext& context, const std::wstring& folder);
  static std::vector<std::wstring> OfSharedAsset(const BuildContext& context, const std::wstring& folder);
};

}  // namespace ZORVEL
