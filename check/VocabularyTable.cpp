// What is read of a description. Every sentence here stands in docs/repository-format.md and in docs/schema/zorvel.xsd:
// run scripts/reference after a change.
#include "check/Vocabulary.h"
#include "model/RepositoryFormat.h"

namespace check {

using namespace ZORVEL::RepositoryFormat;

namespace {

const char* const PAGE = "its page";
const char* const NOBODY = "nobody";

AttributeEntry unusedUrl() {
  return {FIELD_URL,    AttributeKind::Address,
          Need::Unused, "an address that is never opened: the one of the pose is",
          NOBODY,       "nothing"};
}

AttributeEntry setByThePlugIn(const wchar_t* name, const char* meaning) {
  return {name, AttributeKind::Text, Need::Forbidden, meaning, NOBODY, "nothing"};
}

AttributeEntry listName() {
  return {FIELD_NAME,       AttributeKind::Text,
          Need::ToLookWell, "the title of the page; names of several such lists of a character run together",
          "the window",     "the tab of the page is blank"};
}

AttributeEntry shownName() {
  return {FIELD_NAME, AttributeKind::Text, Need::ToLookWell, "the text under its picture", PAGE, "the text is blank"};
}

AttributeEntry coordinate(const wchar_t* name, const char* meaning) {
  return {name, AttributeKind::Number, Need::Free, meaning, "the builder", "counts as 0"};
}

AttributeEntry material(const char* meaning, const char* without) {
  return {FIELD_MATERIAL, AttributeKind::Text, Need::ToLookWell, meaning, "the builder", without};
}

AttributeEntry preview(Need need, const char* meaning, const char* without) {
  return {FIELD_PREVIEW, AttributeKind::File, need, meaning, PAGE, without};
}

std::vector<AttributeEntry> materialOfAsset() {
  return {
      {FIELD_ID, AttributeKind::Id, Need::ToLookWell, "names it in the asset", "the selects of clothes",
       "no clothing can select it"},
      {FIELD_NAME, AttributeKind::Text, Need::ToLookWell, "stands behind the name of the asset, under its picture",
       PAGE, "the text ends behind the name of the asset"},
      preview(Need::ToBeUsed, "a picture of 150 x 150 pixels in the folder of the asset, with its ending",
              "the asset is not shown in this material"),
      material("the name of a material in the libraries of the asset", "the asset is built without a material"),
      unusedUrl(),
  };
}

std::vector<ElementEntry> sharedEntries() {
  return {
      {EntryKind::Repository,
       ELEMENT_ZORVEL,
       EntryKind::Repository,
       Count::One,
       false,
       "the repository; it has no namespace",
       "nothing loads",
       {}},
      {EntryKind::SharedAssets,
       ELEMENT_GLOBAL_ASSETS,
       EntryKind::Repository,
       Count::AtMostOne,
       false,
       "the assets that all characters may share",
       "there are no shared assets",
       {}},
      {EntryKind::SharedAsset,
       ELEMENT_ASSET,
       EntryKind::SharedAssets,
       Count::Any,
       false,
       "an asset below global_assets; a character offers it by an asset of its own that stands for it",
       "",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it among the shared assets",
         "the assets that stand for it, in \"globalID\"", "no character can offer it"},
        {FIELD_NAME, AttributeKind::Text, Need::ToBeUsed, "the text under its picture and the name in the scene",
         "the page of its category, the builder", "it is chosen and not built"},
        {FIELD_FOLDER, AttributeKind::Folder, Need::ToBeUsed, "its folder below global_assets",
         "the check on disk, its page, the builder", "it is not offered"},
        {FIELD_TYPE,
         AttributeKind::Choice,
         Need::ToBeUsed,
         "that it is a shared one",
         "its page, the builder",
         "it is looked for in the folder of the character and never shown",
         {{VALUE_GLOBAL, "an asset below global_assets"}}},
        material(
            "the name of a material in its libraries; of an asset that lists materials to choose from, the one for "
            "a pose that asks for it",
            "it is built without a material, unless it lists materials"),
        unusedUrl(),
        setByThePlugIn(FIELD_LOCAL_ASSET_ID, "the plug-in notes the id of the character's asset here")}},
      {EntryKind::SharedMaterial, ELEMENT_MATERIAL, EntryKind::SharedAsset, Count::Any, true,
       "a material in which the asset is offered", "the asset is offered once, with preview.png and its own material",
       materialOfAsset()},
  };
}

std::vector<ElementEntry> characterEntries() {
  return {
      {EntryKind::Character,
       ELEMENT_CHARACTER,
       EntryKind::Repository,
       Count::OneOrMore,
       false,
       "a character in the list at the left",
       "the list is empty",
       {{FIELD_FOLDER, AttributeKind::Folder, Need::ToBeRead,
         "the character's folder below that of the repository; it holds the folders previews and skin",
         "the reader, and whatever opens a file of the character", "the character is left out"},
        {FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it in the repository", "the window, the builder",
         "a click on it does nothing"},
        {FIELD_NAME, AttributeKind::Text, Need::ToLookWell, "its text in the list, and the end of the group's name",
         "the window, the builder", "the list has a blank row"},
        unusedUrl(),
        setByThePlugIn(FIELD_TEXTURE_FOLDER, "the plug-in notes a folder here when it builds"),
        setByThePlugIn(FIELD_GLOBAL_MAPS, "the plug-in notes the folder of the textures here when it builds")}},
      {EntryKind::Skins,
       ELEMENT_SKINS,
       EntryKind::Character,
       Count::One,
       false,
       "the page of the skins",
       "nothing can be built",
       {listName()}},
      {EntryKind::Skin,
       ELEMENT_SKIN,
       EntryKind::Skins,
       Count::OneOrMore,
       false,
       "a skin to choose",
       "nothing can be built",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it in the character", "the window, the builder",
         "when it is chosen, nothing can be built"},
        shownName(),
        preview(Need::ToBeUsed, "a picture of 150 x 150 pixels in the character's folder skin, with its ending",
                "the skin is not shown"),
        material("the name of a material in skin.mat, or in one of the character's own libraries",
                 "the body is built without a material"),
        unusedUrl()}},
  };
}

std::vector<ElementEntry> clothEntries() {
  return {
      {EntryKind::Cloth,
       ELEMENT_CLOTH,
       EntryKind::Character,
       Count::One,
       false,
       "the clothes of the character; its name is the title of the page of the styles",
       "nothing can be built",
       {listName()}},
      {EntryKind::Clothing,
       ELEMENT_CLOTHING,
       EntryKind::Cloth,
       Count::OneOrMore,
       false,
       "a clothing, in the list at the left and in the strip of pictures, by name",
       "nothing can be built",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed,
         "names it in the character, and is part of the names of its pictures and meshes",
         "the reader, the window, the builder", "a click on it does nothing"},
        {FIELD_NAME, AttributeKind::Text, Need::ToBeUsed,
         "its text in the window and its name in the scene; clothes are sorted by it", "the window, the builder",
         "it is chosen and not built"},
        {FIELD_FOLDER, AttributeKind::Folder, Need::ToBeUsed, "its folder in that of the character",
         "the reader, the window, the builder", "it is not in the list and cannot be built"},
        unusedUrl(),
        setByThePlugIn(FIELD_AVAILABLE, "the plug-in notes here whether the folder is there")}},
      {EntryKind::Style,
       ELEMENT_MATERIAL,
       EntryKind::Clothing,
       Count::OneOrMore,
       false,
       "a style of the clothing to choose",
       "nothing can be built in this clothing",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it in the clothing", "the window, the builder",
         "when it is chosen, nothing can be built"},
        shownName(),
        preview(Need::ToLookWell, "a picture of 100 x 300 pixels in the folder of the clothing, with its ending",
                "the style is shown without a picture"),
        material("the name of a material in the libraries of the clothing", "the clothing is built without a material"),
        unusedUrl()}},
  };
}

std::vector<ElementEntry> wornAlongEntries() {
  return {
      {EntryKind::Exclude,
       ELEMENT_EXCLUDE,
       EntryKind::Clothing,
       Count::Any,
       false,
       "an asset that is not offered with this clothing",
       "",
       {{FIELD_ID,
         AttributeKind::Reference,
         Need::ToBeUsed,
         "the asset",
         "the pages of the assets",
         "it excludes nothing",
         {},
         EntryKind::Asset}}},
      {EntryKind::Select,
       ELEMENT_SELECT,
       EntryKind::Clothing,
       Count::Any,
       false,
       "an asset that is chosen together with this clothing, to begin with",
       "",
       {{FIELD_ASSET_ID,
         AttributeKind::Reference,
         Need::ToBeUsed,
         "the asset; of a shared one the character's own that stands for it",
         "the pages of the assets",
         "it selects nothing",
         {},
         EntryKind::Asset},
        {FIELD_MATERIAL_ID,
         AttributeKind::Reference,
         Need::ToLookWell,
         "one of the materials of the asset; not for an asset without materials",
         "the pages of the assets",
         "nothing of an asset that has materials is selected",
         {},
         EntryKind::AssetMaterial}}},
  };
}

std::vector<ElementEntry> poseEntries() {
  return {
      {EntryKind::Poses,
       ELEMENT_POSES,
       EntryKind::Character,
       Count::One,
       false,
       "the page of the poses",
       "nothing can be built",
       {listName()}},
      {EntryKind::Pose,
       ELEMENT_POSE,
       EntryKind::Poses,
       Count::OneOrMore,
       false,
       "a pose to choose",
       "nothing can be built",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed,
         "names it in the character, and is part of the names of pictures and meshes", "the window, the builder",
         "when it is chosen, nothing can be built"},
        {FIELD_NAME, AttributeKind::Text, Need::ToBeUsed, "the text under its picture and the body's name in the scene",
         "its page, the builder", "the character is built without its body and without what the pose asks for"},
        {FIELD_FOLDER, AttributeKind::Folder, Need::ToBeUsed, "its folder in that of the character",
         "the check on disk, the builder", "the pose is not shown"},
        {FIELD_URL, AttributeKind::Address, Need::Free,
         "the web page where a clothing can be had in this pose: http or https, at most 2048 characters; \"&gid=\" and "
         "the id of the clothing are appended",
         "the pages, for what is not available", "a click on the grey picture opens nothing"}}},
      {EntryKind::MandatoryAsset,
       ELEMENT_ASSET,
       EntryKind::Pose,
       Count::Any,
       true,
       "an asset that is built whenever the pose is, without being chosen",
       "",
       {{FIELD_ID,
         AttributeKind::Reference,
         Need::ToBeUsed,
         "an asset of the character",
         "the builder",
         "nothing is built for it",
         {},
         EntryKind::Asset},
        {FIELD_NAME, AttributeKind::Text, Need::Free, "what the report about a build calls it",
         "the report about a build", "the report names the id alone"}}},
  };
}

std::vector<ElementEntry> categoryEntries() {
  return {
      {EntryKind::Categories,
       ELEMENT_CATEGORIES,
       EntryKind::Character,
       Count::AtMostOne,
       false,
       "the pages of the assets",
       "no asset is offered",
       {}},
      {EntryKind::Category,
       ELEMENT_CATEGORY,
       EntryKind::Categories,
       Count::Any,
       false,
       "a page of assets",
       "its assets are on no page",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it in the character", "the pages of the assets",
         "it has no page"},
        {FIELD_NAME, AttributeKind::Text, Need::ToLookWell, "the title of the page", "the window",
         "the tab of the page is blank"},
        {FIELD_SELECTION,
         AttributeKind::Choice,
         Need::Free,
         "how many of its assets can be chosen together",
         "the page, the choice of assets",
         "one at most",
         {{VALUE_MULTIPLE, "any number"}, {L"single", "one at most, as any other text"}}},
        {FIELD_REQUIRED,
         AttributeKind::Choice,
         Need::Free,
         "whether one of its assets is always chosen",
         "the page, the choice of assets",
         "none needs to be chosen",
         {{VALUE_TRUE, "the first is chosen to begin with, and the last one cannot be taken away"},
          {L"false", "none needs to be chosen, as with any other text"}}}}},
  };
}

AttributeEntry typeOfAsset() {
  return {FIELD_TYPE,
          AttributeKind::Choice,
          Need::Free,
          "where it comes from and how it is placed",
          "the check on disk, its page, the builder",
          "counts as \"common\"",
          {{VALUE_COMMON, "one mesh, placed by the asset matrix; any other text counts as this"},
           {VALUE_SPECIFIC, "one mesh for each pose, which stands where it was modelled; needs no row in the matrix"},
           {VALUE_GLOBAL, "stands for a shared asset, which is placed by this character's asset matrix"}}};
}

std::vector<ElementEntry> assetEntries() {
  return {
      {EntryKind::Assets,
       ELEMENT_ASSETS,
       EntryKind::Character,
       Count::AtMostOne,
       false,
       "the assets of the character",
       "no asset is offered",
       {}},
      {EntryKind::Asset,
       ELEMENT_ASSET,
       EntryKind::Assets,
       Count::Any,
       false,
       "an asset on the page of its category, once or once for each of its materials",
       "",
       {{FIELD_ID, AttributeKind::Id, Need::ToBeUsed, "names it in the character",
         "the asset matrix, poses, excludes and selects, the builder", "it is chosen and not built"},
        {FIELD_NAME, AttributeKind::Text, Need::ToBeUsed,
         "the text under its picture and the name in the scene; a shared asset has its own", "its page, the builder",
         "it is chosen and not built"},
        {FIELD_FOLDER, AttributeKind::Folder, Need::ToBeUsed,
         "its folder in that of the character; a shared asset has its own", "the check on disk, its page, the builder",
         "it is not offered"},
        typeOfAsset(),
        {FIELD_GLOBAL_ID,
         AttributeKind::Reference,
         Need::Free,
         "the shared asset that it stands for; of the type \"global\" only",
         "the check on disk, its page, the builder",
         "an asset of the type \"global\" is never offered",
         {},
         EntryKind::SharedAsset},
        {FIELD_CATEGORY,
         AttributeKind::Reference,
         Need::ToBeUsed,
         "the category on whose page it is",
         "the pages of the assets",
         "it is on no page; a pose can ask for it all the same",
         {},
         EntryKind::Category},
        material(
            "the name of a material in its libraries; of an asset that lists materials to choose from, the one for "
            "a pose that asks for it",
            "it is built without a material, unless it lists materials"),
        unusedUrl(),
        setByThePlugIn(FIELD_LOCAL_ASSET_ID, "with it no clothing can select the asset by its id")}},
      {EntryKind::AssetMaterial, ELEMENT_MATERIAL, EntryKind::Asset, Count::Any, true,
       "a material in which the asset is offered", "the asset is offered once, with preview.png and its own material",
       materialOfAsset()},
  };
}

std::vector<ElementEntry> matrixEntries() {
  return {
      {EntryKind::AssetMatrix,
       ELEMENT_ASSET_MATRIX,
       EntryKind::Character,
       Count::AtMostOne,
       false,
       "where assets are in which pose",
       "only assets of the type \"specific\" are offered",
       {}},
      {EntryKind::MatrixRow,
       ELEMENT_MATRIX,
       EntryKind::AssetMatrix,
       Count::Any,
       false,
       "the place of one asset in one pose; of several rows for the same two the first counts",
       "the asset is not offered in the pose",
       {{FIELD_POSE_ID,
         AttributeKind::Reference,
         Need::ToBeRead,
         "the pose",
         "the pages of the assets, the builder",
         "the row is left out",
         {},
         EntryKind::Pose},
        {FIELD_MATRIX_ASSET_ID,
         AttributeKind::Reference,
         Need::ToBeRead,
         "the asset; of a shared one the character's own that stands for it",
         "the pages of the assets, the builder",
         "the row is left out",
         {},
         EntryKind::Asset},
        coordinate(FIELD_XPOS, "centimetres along X"),
        coordinate(FIELD_YPOS, "centimetres along Y"),
        coordinate(FIELD_ZPOS, "centimetres up"),
        coordinate(FIELD_XROT, "degrees about X, the first turn"),
        coordinate(FIELD_YROT, "degrees about Y, the second turn"),
        coordinate(FIELD_ZROT, "degrees about Z, the last turn")}},
  };
}

std::vector<ElementEntry> makeEntries() {
  std::vector<ElementEntry> all;
  for (const auto& part : {sharedEntries(), characterEntries(), clothEntries(), wornAlongEntries(), poseEntries(),
                           categoryEntries(), assetEntries(), matrixEntries()}) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

}  // namespace

const std::vector<ElementEntry>& allEntries() {
  static const std::vector<ElementEntry> entries = makeEntries();
  return entries;
}

}  // namespace check
