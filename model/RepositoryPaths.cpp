#include "model/RepositoryPaths.h"

#include "core/Settings.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace ZORVEL {

using namespace RepositoryFormat;

std::wstring RepositoryPaths::Root() {
  const wchar_t* root = Settings::GetPath();
  return root ? root : L"";
}

std::wstring RepositoryPaths::Description(const std::wstring& root) { return root + DESCRIPTION_FILE; }

std::wstring RepositoryPaths::Character(const std::wstring& root, const wchar_t* folder) {
  return root + SEPARATOR + folder;
}

std::wstring RepositoryPaths::GlobalAsset(const std::wstring& root, const DataContainer* asset) {
  return root + GLOBAL_ASSETS_FOLDER + Fields::TextOrEmpty(asset, FIELD_FOLDER);
}

std::wstring RepositoryPaths::GlobalLibrary(const std::wstring& root) { return root + GLOBAL_LIBRARY_FILE; }

std::wstring RepositoryPaths::Maps(const std::wstring& root) { return root + MAPS_FOLDER; }

std::wstring RepositoryPaths::ClothOverlay(const std::wstring& root) { return root + CLOTH_OVERLAY_FILE; }

std::wstring RepositoryPaths::ElementOverlay(const std::wstring& root) { return root + ELEMENT_OVERLAY_FILE; }

std::wstring RepositoryPaths::Previews(const std::wstring& character) { return character + PREVIEWS_FOLDER; }

std::wstring RepositoryPaths::Skin(const std::wstring& character) { return character + SKIN_FOLDER; }

std::wstring RepositoryPaths::Element(const std::wstring& character, const DataContainer* element) {
  return character + SEPARATOR + Fields::TextOrEmpty(element, FIELD_FOLDER);
}

std::wstring RepositoryPaths::Asset(const std::wstring& root, const std::wstring& character,
                                    const DataContainer* asset) {
  return Data2::CheckAssetGlobal(asset) ? GlobalAsset(root, asset) : Element(character, asset);
}

std::wstring RepositoryPaths::Textures(const std::wstring& character) { return character + SEPARATOR + MAPS_FOLDER; }

std::wstring RepositoryPaths::ClothPreview(const std::wstring& character, const DataContainer* cloth) {
  return character + CLOTH_PREVIEW + Fields::TextOrEmpty(cloth, FIELD_ID) + PICTURE_ENDING;
}

std::wstring RepositoryPaths::PosePicture(const std::wstring& character, const std::wstring& clothId,
                                          const DataContainer* pose) {
  return Previews(character) + SEPARATOR + clothId + COMBINED + Fields::TextOrEmpty(pose, FIELD_ID) + PICTURE_ENDING;
}

std::wstring RepositoryPaths::SkinPicture(const std::wstring& character, const DataContainer* skin) {
  return StylePicture(Skin(character), skin);
}

std::wstring RepositoryPaths::SkinLibrary(const std::wstring& character) { return character + SKIN_LIBRARY_FILE; }

std::wstring RepositoryPaths::CharacterLibrary(const std::wstring& character) { return Library(character); }

std::wstring RepositoryPaths::PropsLibrary(const std::wstring& character) { return character + PROPS_LIBRARY_FILE; }

std::wstring RepositoryPaths::Library(const std::wstring& element) { return element + LIBRARY_FILE; }

std::wstring RepositoryPaths::BodyMesh(const std::wstring& pose) { return pose + BODY_MESH_FILE; }

std::wstring RepositoryPaths::ClothMesh(const std::wstring& cloth, const std::wstring& clothId,
                                        const std::wstring& poseId) {
  return cloth + SEPARATOR + clothId + COMBINED + poseId + MESH_ENDING;
}

std::wstring RepositoryPaths::AssetMesh(const std::wstring& asset) { return asset + ASSET_MESH_FILE; }

std::wstring RepositoryPaths::AssetMeshInPose(const std::wstring& asset, const std::wstring& poseId) {
  return asset + SEPARATOR + poseId + MESH_ENDING;
}

std::wstring RepositoryPaths::AssetPicture(const std::wstring& asset) { return asset + ASSET_PICTURE_FILE; }

std::wstring RepositoryPaths::StylePicture(const std::wstring& element, const DataContainer* style) {
  return element + SEPARATOR + Fields::TextOrEmpty(style, FIELD_PREVIEW);
}

}  // namespace ZORVEL
