#pragma once

#include <string>

namespace ZORVEL {

class DataContainer;

/// Where everything of a repository lies. Parts are joined as they stand with a backslash between them, and nothing
/// takes a doubled one away. A field that a record lacks counts as empty: who needs it to be there asks for it first.
namespace RepositoryPaths {

/// The root as the settings hold it; empty without settings.
std::wstring Root();

// Below the root.
std::wstring Description(const std::wstring& root);
std::wstring Character(const std::wstring& root, const wchar_t* folder);
std::wstring GlobalAsset(const std::wstring& root, const DataContainer* asset);
/// Searched for the materials of every global asset, after its own.
std::wstring GlobalLibrary(const std::wstring& root);
/// Of all textures; ends in a separator, and needs a root that does.
std::wstring Maps(const std::wstring& root);
/// Drawn over the pictures of what is not available: in the clothing strip, and on the pages.
std::wstring ClothOverlay(const std::wstring& root);
std::wstring ElementOverlay(const std::wstring& root);

// Below the folder of a character, which is a whole path.
std::wstring Previews(const std::wstring& character);
std::wstring Skin(const std::wstring& character);
/// Of a clothing, a pose or an asset of the character's own.
std::wstring Element(const std::wstring& character, const DataContainer* element);
/// Of any asset: a global one lies below the root.
std::wstring Asset(const std::wstring& root, const std::wstring& character, const DataContainer* asset);
/// Ends in a separator.
std::wstring Textures(const std::wstring& character);
std::wstring ClothPreview(const std::wstring& character, const DataContainer* cloth);
std::wstring PosePicture(const std::wstring& character, const std::wstring& clothId, const DataContainer* pose);
std::wstring SkinPicture(const std::wstring& character, const DataContainer* skin);
std::wstring SkinLibrary(const std::wstring& character);
/// Searched in this order for materials that an element's own library does not hold.
std::wstring CharacterLibrary(const std::wstring& character);
std::wstring PropsLibrary(const std::wstring& character);

// In the folder of an element, a whole path as the functions above answer it.
std::wstring Library(const std::wstring& element);
std::wstring BodyMesh(const std::wstring& pose);
std::wstring ClothMesh(const std::wstring& cloth, const std::wstring& clothId, const std::wstring& poseId);
std::wstring AssetMesh(const std::wstring& asset);
/// Of an asset that is modelled for each pose.
std::wstring AssetMeshInPose(const std::wstring& asset, const std::wstring& poseId);
std::wstring AssetPicture(const std::wstring& asset);
/// Of a style of a clothing or of an asset.
std::wstring StylePicture(const std::wstring& element, const DataContainer* style);

}  // namespace RepositoryPaths

}  // namespace ZORVEL
