#pragma once

namespace ZORVEL {

/// The names of a repository: files and folders below its root (RepositoryPaths joins them), elements and attributes of
/// its description. Every attribute becomes a field of the same name.
namespace RepositoryFormat {

constexpr wchar_t SEPARATOR[] = L"\\";
/// Between the ids of a clothing and a pose in the names of files.
constexpr wchar_t COMBINED[] = L"_";

// Joined as they stand to the folder before them.
constexpr wchar_t DESCRIPTION_FILE[] = L"\\zorvel.xml";
constexpr wchar_t PREVIEWS_FOLDER[] = L"\\previews";
/// What follows is an id and the ending of pictures.
constexpr wchar_t CLOTH_PREVIEW[] = L"\\previews\\preview_";
constexpr wchar_t SKIN_FOLDER[] = L"\\skin";
constexpr wchar_t SKIN_LIBRARY_FILE[] = L"\\skin\\skin.mat";
constexpr wchar_t LIBRARY_FILE[] = L"\\materials.mat";
constexpr wchar_t PROPS_LIBRARY_FILE[] = L"\\props.mat";
constexpr wchar_t GLOBAL_ASSETS_FOLDER[] = L"\\global_assets\\";
constexpr wchar_t GLOBAL_LIBRARY_FILE[] = L"\\global_assets\\materials.mat";
constexpr wchar_t CLOTH_OVERLAY_FILE[] = L"\\overlay110x330.png";
constexpr wchar_t ELEMENT_OVERLAY_FILE[] = L"\\overlay100x300.png";
constexpr wchar_t BODY_MESH_FILE[] = L"\\pose.vrmesh";
constexpr wchar_t ASSET_MESH_FILE[] = L"\\asset.vrmesh";
constexpr wchar_t ASSET_PICTURE_FILE[] = L"\\preview.png";

constexpr wchar_t MAPS_FOLDER[] = L"maps\\";
constexpr wchar_t MESH_ENDING[] = L".vrmesh";
constexpr wchar_t PICTURE_ENDING[] = L".png";

constexpr wchar_t ELEMENT_ZORVEL[] = L"zorvel";
constexpr wchar_t ELEMENT_CHARACTER[] = L"character";
constexpr wchar_t ELEMENT_GLOBAL_ASSETS[] = L"globalAssets";
constexpr wchar_t ELEMENT_SKINS[] = L"skins";
constexpr wchar_t ELEMENT_SKIN[] = L"skin";
constexpr wchar_t ELEMENT_CLOTH[] = L"cloth";
constexpr wchar_t ELEMENT_CLOTHING[] = L"clothing";
constexpr wchar_t ELEMENT_MATERIAL[] = L"material";
constexpr wchar_t ELEMENT_EXCLUDE[] = L"exclude";
constexpr wchar_t ELEMENT_SELECT[] = L"select";
constexpr wchar_t ELEMENT_POSES[] = L"poses";
constexpr wchar_t ELEMENT_POSE[] = L"pose";
constexpr wchar_t ELEMENT_CATEGORIES[] = L"categories";
constexpr wchar_t ELEMENT_CATEGORY[] = L"category";
constexpr wchar_t ELEMENT_ASSETS[] = L"assets";
constexpr wchar_t ELEMENT_ASSET[] = L"asset";
constexpr wchar_t ELEMENT_ASSET_MATRIX[] = L"AssetMatrix";
constexpr wchar_t ELEMENT_MATRIX[] = L"matrix";

constexpr wchar_t FIELD_ID[] = L"id";
constexpr wchar_t FIELD_NAME[] = L"name";
constexpr wchar_t FIELD_FOLDER[] = L"folder";
constexpr wchar_t FIELD_PREVIEW[] = L"preview";
constexpr wchar_t FIELD_URL[] = L"url";
constexpr wchar_t FIELD_TYPE[] = L"type";
constexpr wchar_t FIELD_GLOBAL_ID[] = L"globalID";
constexpr wchar_t FIELD_CATEGORY[] = L"category";
constexpr wchar_t FIELD_SELECTION[] = L"selection";
constexpr wchar_t FIELD_REQUIRED[] = L"required";
constexpr wchar_t FIELD_MATERIAL[] = L"material";
constexpr wchar_t FIELD_ASSET_ID[] = L"asset_id";
constexpr wchar_t FIELD_MATERIAL_ID[] = L"material_id";
constexpr wchar_t FIELD_POSE_ID[] = L"poseID";
constexpr wchar_t FIELD_MATRIX_ASSET_ID[] = L"assetID";
constexpr wchar_t FIELD_XPOS[] = L"xpos";
constexpr wchar_t FIELD_YPOS[] = L"ypos";
constexpr wchar_t FIELD_ZPOS[] = L"zpos";
constexpr wchar_t FIELD_XROT[] = L"xrot";
constexpr wchar_t FIELD_YROT[] = L"yrot";
constexpr wchar_t FIELD_ZROT[] = L"zrot";
/// Never in the file: set while reading, to one of the two values.
constexpr wchar_t FIELD_AVAILABLE[] = L"available";
/// Nor these: the id under which a character knows a global asset, and the folders of textures, derived when building.
constexpr wchar_t FIELD_LOCAL_ASSET_ID[] = L"local_asset_id";
constexpr wchar_t FIELD_TEXTURE_FOLDER[] = L"generalTextureFolder";
constexpr wchar_t FIELD_GLOBAL_MAPS[] = L"globalMaps";

constexpr wchar_t VALUE_AVAILABLE[] = L"available";
constexpr wchar_t VALUE_NOT_AVAILABLE[] = L"notavailable";
constexpr wchar_t VALUE_SPECIFIC[] = L"specific";
constexpr wchar_t VALUE_COMMON[] = L"common";
constexpr wchar_t VALUE_GLOBAL[] = L"global";
constexpr wchar_t VALUE_MULTIPLE[] = L"multiple";
constexpr wchar_t VALUE_TRUE[] = L"true";

}  // namespace RepositoryFormat

}  // namespace ZORVEL
