#pragma once

#include <string>
#include <vector>

namespace ZORVEL {

struct BuildContext;

/// Where a build looks for its files. Folders that come with a trailing separator leave doubled ones, which are kept:
/// the text of a mesh's path decides what shares a proxy object.
class BuildPaths {
 public:
  BuildPaths() = delete;

  static std::wstring CharacterMaps(const std::wstring& characterFolder);
  static std::wstring GlobalMaps(const std::wstring& repositoryPath);

  /// Folders of one element, without a separator at the end.
  static std::wstring OwnFolder(const BuildContext& context, const wchar_t* folder);
  static std::wstring SharedFolder(const BuildContext& context, const wchar_t* folder);

  /// In the folder of the element.
  static std::wstring BodyMesh(const std::wstring& folder);
  static std::wstring ClothMesh(const BuildContext& context, const std::wstring& folder);
  static std::wstring AssetMesh(const std::wstring& folder);
  /// Of an asset that has a mesh for each pose.
  static std::wstring PoseAssetMesh(const BuildContext& context, const std::wstring& folder);

  /// The libraries that may hold a material, in the order in which they are searched. The folder is the element's.
  static std::vector<std::wstring> SkinLibraries(const BuildContext& context);
  static std::vector<std::wstring> OwnLibraries(const BuildContext& context, const std::wstring& folder);
  static std::vector<std::wstring> SharedLibraries(const BuildContext& context, const std::wstring& folder);
};

}  // namespace ZORVEL
