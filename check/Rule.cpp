#include <algorithm>
#include <cctype>
#include <cstring>

#include "check/Rule.h"

namespace check {

namespace {

constexpr Severity ERROR = Severity::Error;
constexpr Severity WARNING = Severity::Warning;
constexpr Severity HINT = Severity::Hint;

// In the order of RuleId. Codes are for ever: a rule that goes leaves a gap.
const std::vector<Rule> RULES = {
    {RuleId::DescriptionMissing, "ZV101", "description-missing", ERROR, "there is no zorvel.xml in this folder",
     "Name the folder that holds zorvel.xml, or make one with `zorvel init`."},
    {RuleId::DescriptionUnreadable, "ZV102", "description-unreadable", ERROR, "zorvel.xml cannot be read: {why}",
     "See to it that zorvel.xml is a file that you may read."},
    {RuleId::DescriptionNotWellFormed, "ZV103", "description-not-well-formed", ERROR,
     "zorvel.xml is not well-formed XML, so nothing of the repository loads: {why}",
     "Mend the XML at this place; an editor that knows XML shows what is open."},
    {RuleId::DescriptionBeyondLimits, "ZV104", "description-beyond-limits", ERROR,
     "zorvel.xml is refused, so nothing of the repository loads: {why}",
     "Split the repository, or take out what makes the file this large or deep."},
    {RuleId::WrongDocumentElement, "ZV105", "wrong-document-element", ERROR,
     "the document element is \"{name}\", not \"zorvel\" without a namespace: nothing of the repository loads",
     "Put everything into one <zorvel> element."},
    {RuleId::CharacterWithoutAttributes, "ZV106", "character-without-attributes", ERROR,
     "the character has no attributes and is left out", "Give it \"id\", \"name\" and \"folder\"."},
    {RuleId::CharacterFolderUnnamed, "ZV107", "character-folder-unnamed", ERROR,
     "the character has no \"folder\" and is left out", "Name the character's folder in \"folder\"."},
    {RuleId::CharacterPreviewsMissing, "ZV108", "character-previews-missing", ERROR,
     "there is no folder {folder}: the character is left out",
     "Make the folder and put the character's preview pictures there, or correct \"folder\"."},
    {RuleId::CharacterSkinFolderMissing, "ZV109", "character-skin-folder-missing", ERROR,
     "there is no folder {folder}: the character is left out",
     "Make the folder and put skin.mat and the pictures of the skins there."},
    {RuleId::UnknownElement, "ZV110", "unknown-element", WARNING,
     "\"{element}\" means nothing in \"{parent}\" and is skipped with all that it holds{hint}",
     "Correct the name, or take the element out."},
    {RuleId::MisplacedElement, "ZV111", "misplaced-element", WARNING,
     "\"{element}\" is not read in \"{parent}\" and is skipped with all that it holds; it belongs into {place}",
     "Move the element to where it is read."},
    {RuleId::ElementLetterCase, "ZV112", "element-letter-case", WARNING,
     "\"{element}\" is skipped with all that it holds: it is written \"{right}\"",
     "Write the name as it is read; letter case counts."},
    {RuleId::UnknownAttribute, "ZV113", "unknown-attribute", WARNING,
     "nothing reads the attribute \"{attribute}\"{hint}", "Correct the name, or take the attribute out."},
    {RuleId::AttributeLetterCase, "ZV114", "attribute-letter-case", WARNING,
     "nothing reads the attribute \"{attribute}\": it is written \"{right}\"",
     "Write the name as it is read; letter case counts."},
    {RuleId::SystemAttribute, "ZV115", "system-attribute", WARNING,
     "\"{attribute}\" is an attribute that the plug-in sets itself: it is overwritten or misread",
     "Take the attribute out."},
    {RuleId::AssetChildNotMaterial, "ZV116", "asset-child-not-material", WARNING,
     "\"{element}\" in an asset counts as one of its materials: the plain asset is no longer offered",
     "Call it \"material\" if it is one; else take it out."},
    {RuleId::PoseChildNotAsset, "ZV117", "pose-child-not-asset", WARNING,
     "\"{element}\" in a pose counts as an asset that the pose asks for",
     "Call it \"asset\" if it is one; else take it out."},
    {RuleId::ListNameExtended, "ZV118", "list-name-extended", HINT,
     "\"{name}\" is appended to the name of an earlier list of the same kind",
     "Keep one such list in a character, or leave the second without \"name\"."},
    {RuleId::ListWithoutName, "ZV119", "list-without-name", WARNING, "the list has no \"name\": its tab is blank",
     "Give the list a \"name\"."},
    {RuleId::ElementWithoutName, "ZV120", "element-without-name", WARNING,
     "the {kind} has no \"name\": its text in the window is blank", "Give it a \"name\"."},
    {RuleId::ClothingPreviewMissing, "ZV121", "clothing-preview-missing", ERROR,
     "there is no picture {file}: the clothing is dropped when the repository loads, with its styles, excludes and "
     "selects",
     "Put the picture there (110 x 330 pixels), or correct the clothing's \"id\"."},
    {RuleId::ClothingOrder, "ZV122", "clothing-order", HINT,
     "in the window the clothing \"{name}\" stands behind \"{other}\": capitals come first, accents last, and a "
     "leading "
     "blank counts",
     "Write the names so that their order by characters is the one you want."},
    {RuleId::MatrixRowIncomplete, "ZV123", "matrix-row-incomplete", ERROR,
     "the row of the asset matrix has no \"{attribute}\" and is left out", "Name pose and asset of the row."},
    {RuleId::MatrixRowDuplicate, "ZV124", "matrix-row-duplicate", WARNING,
     "the row is never used: line {line} has one for the same pose and asset", "Keep one of the two rows."},
    {RuleId::NumberNotWhole, "ZV125", "number-not-whole", WARNING,
     "\"{attribute}\" is \"{value}\", which is read as {number}",
     "Write a plain number with a point, such as 12.5; no comma, unit or text."},
    {RuleId::MatrixRowUnknownPose, "ZV126", "matrix-row-unknown-pose", WARNING,
     "the row is never used: the character has no pose \"{id}\"{hint}", "Correct \"poseID\", or take the row out."},
    {RuleId::MatrixRowUnknownAsset, "ZV127", "matrix-row-unknown-asset", WARNING,
     "the row is never used: the character has no asset \"{id}\"{hint}", "Correct \"assetID\", or take the row out."},
    {RuleId::MatrixRowUnused, "ZV128", "matrix-row-unused", WARNING,
     "the row is never used: the asset \"{id}\" is modelled for each pose",
     "Take the row out, or change the asset's "
     "\"type\"."},

    {RuleId::IdMissing, "ZV201", "id-missing", ERROR, "the {kind} has no \"id\": a click on it does nothing",
     "Give it an \"id\" that no other has."},
    {RuleId::ChoiceIdMissing, "ZV202", "choice-id-missing", ERROR,
     "the {kind} has no \"id\": when it is chosen, nothing can be built", "Give it an \"id\" that no other has."},
    {RuleId::IdEmpty, "ZV203", "id-empty", ERROR, "the \"id\" of the {kind} is empty: nothing can be built with it",
     "Give it an \"id\" that no other has."},
    {RuleId::IdDuplicate, "ZV204", "id-duplicate", ERROR,
     "the {kind} has the \"id\" of the one in line {line}: this one is shown, that one is chosen and built",
     "Give each its own \"id\"."},
    {RuleId::AssetIdDuplicate, "ZV205", "asset-id-duplicate", WARNING,
     "the asset has the \"id\" of the one in line {line}: rows and poses mean that one, excludes and selects both",
     "Give each its own \"id\"."},
    {RuleId::CategoryIdDuplicate, "ZV206", "category-id-duplicate", WARNING,
     "the category has the \"id\" of the one in line {line}: its assets stand on both tabs, with the rules of the "
     "first",
     "Give each its own \"id\"."},
    {RuleId::GlobalIdDuplicate, "ZV207", "global-id-duplicate", WARNING,
     "the shared asset has the \"id\" of the one in line {line} and is never found", "Give each its own \"id\"."},
    {RuleId::GlobalReferencedTwice, "ZV208", "global-referenced-twice", WARNING,
     "the asset stands for the same shared asset as the one in line {line}: it is listed twice, and rows, category and "
     "excludes of one of them are never used",
     "Refer to each shared asset once in a character."},
    {RuleId::IdsDifferInCase, "ZV209", "ids-differ-in-case", WARNING,
     "the \"id\" differs from \"{other}\" in line {line} only in letter case: their files are the same on Windows",
     "Choose ids that differ in more than letter case."},
    {RuleId::FileNamesMeet, "ZV210", "file-names-meet", HINT, "{one} and {other} name the same file {file}",
     "Choose ids so that clothing and pose together name one file only."},
    {RuleId::NameRefusedByWindows, "ZV211", "name-refused-by-windows", ERROR,
     "\"{attribute}\" is \"{value}\", which {why}", "Choose another name."},
    {RuleId::CategoryWithoutId, "ZV212", "category-without-id", ERROR,
     "the category has no \"id\": it has no tab and lists nothing", "Give it an \"id\" that no other has."},

    {RuleId::ClothingFolderMissing, "ZV301", "clothing-folder-missing", WARNING,
     "there is no folder {folder}: the clothing is shown as not available and cannot be built",
     "Make the folder with the clothing's meshes and materials.mat, or correct \"folder\"."},
    {RuleId::PoseFolderMissing, "ZV302", "pose-folder-missing", ERROR,
     "there is no folder {folder}: the pose is not offered",
     "Make the folder with pose.vrmesh, or correct \"folder\"."},
    {RuleId::AssetFolderMissing, "ZV303", "asset-folder-missing", ERROR,
     "there is no folder {folder}: the asset is not offered",
     "Make the folder with the asset's mesh, material library and picture, or correct \"folder\"."},
    {RuleId::GlobalFolderMissing, "ZV304", "global-folder-missing", ERROR,
     "there is no folder {folder}: the shared asset is offered to nobody",
     "Make the folder with the asset's mesh, material library and picture, or correct \"folder\"."},
    {RuleId::FolderUnnamed, "ZV305", "folder-unnamed", ERROR, "the {kind} has no \"folder\" and is not offered",
     "Name its folder in \"folder\"."},
    {RuleId::ClothingFolderUnnamed, "ZV306", "clothing-folder-unnamed", ERROR,
     "the clothing has no \"folder\": it looks available and can be worn in no pose", "Name its folder in \"folder\"."},
    {RuleId::FolderEmpty, "ZV307", "folder-empty", ERROR,
     "the \"folder\" of the {kind} is empty: its files are looked for in the folder around it",
     "Name its folder in \"folder\"."},
    {RuleId::OverlayMissing, "ZV308", "overlay-missing", WARNING,
     "there is no picture {file}: what is not available looks as if it were",
     "Put the overlay picture into the repository's folder."},
    {RuleId::PictureUnreadable, "ZV309", "picture-unreadable", WARNING, "the picture {file} cannot be shown: {why}",
     "Save the picture again as PNG."},
    {RuleId::PictureSize, "ZV310", "picture-size", WARNING,
     "the picture {file} is {size} pixels, its box {box}: it is never scaled, so it is cut or leaves a margin",
     "Save the picture in the size of its box."},
    {RuleId::PosePictureMissing, "ZV311", "pose-picture-missing", WARNING,
     "there is no picture {file}: the pose is not shown for the clothing \"{clothing}\"",
     "Put the picture there (100 x 300 pixels)."},
    {RuleId::ClothingMeshMissing, "ZV312", "clothing-mesh-missing", WARNING,
     "there is no mesh {file}: the clothing cannot be worn in the pose \"{pose}\"", "Put the mesh there."},
    {RuleId::SkinPictureMissing, "ZV313", "skin-picture-missing", WARNING,
     "there is no picture {file}: the skin is not shown",
     "Put the picture there (150 x 150 pixels), or correct "
     "\"preview\"."},
    {RuleId::PreviewUnnamed, "ZV314", "preview-unnamed", WARNING,
     "the {kind} has no \"preview\", so it has no picture{hint}", "Name its picture in \"preview\"."},
    {RuleId::StylePictureMissing, "ZV315", "style-picture-missing", WARNING,
     "there is no picture {file}: the style is shown without one",
     "Put the picture there (100 x 300 pixels), or "
     "correct \"preview\"."},
    {RuleId::AssetPictureMissing, "ZV316", "asset-picture-missing", WARNING,
     "there is no picture {file}: the asset is not shown", "Put the picture there (150 x 150 pixels)."},
    {RuleId::MaterialPictureMissing, "ZV317", "material-picture-missing", WARNING,
     "there is no picture {file}: the asset is not shown in this material",
     "Put the picture there (150 x 150 pixels), or correct \"preview\"."},
    {RuleId::FileLetterCase, "ZV318", "file-letter-case", HINT,
     "the description means {wanted}, on disk it is {file}: only where letter case does not count is it found",
     "Write both alike."},
    {RuleId::PathTooLong, "ZV319", "path-too-long", WARNING,
     "below {root} the path of {file} has {length} characters, and Windows takes at most 259",
     "Shorten folders and ids, or put the repository nearer to the root of a drive."},
    {RuleId::FolderOutside, "ZV320", "folder-outside", WARNING,
     "\"{attribute}\" is \"{value}\", which leads out of the repository",
     "Keep everything below the repository's folder: it moves and is copied as a whole."},
    {RuleId::FileUnreferenced, "ZV321", "file-unreferenced", HINT, "nothing refers to {file}",
     "Take the file away, or name it in the description."},
    {RuleId::BodyMeshMissing, "ZV322", "body-mesh-missing", ERROR,
     "there is no mesh {file}: in this pose the character is built without a body", "Put the mesh there."},
    {RuleId::AssetMeshMissing, "ZV323", "asset-mesh-missing", ERROR,
     "there is no mesh {file}: the asset is offered and stays empty when it is built", "Put the mesh there."},
    {RuleId::AssetPoseMeshMissing, "ZV324", "asset-pose-mesh-missing", ERROR,
     "there is no mesh {file}: the asset is offered in the pose \"{pose}\" and stays empty when it is built",
     "Put the mesh there: an asset of the type \"specific\" has one for each pose."},
    {RuleId::MeshUnreadable, "ZV325", "mesh-unreadable", ERROR, "the mesh {file} cannot be read: {why}",
     "Export the mesh again."},
    {RuleId::MeshNotChecked, "ZV326", "mesh-not-checked", HINT,
     "{count} of the meshes are in V-Ray's own form, which cannot be read here: they were not checked",
     "See to them in 3ds Max."},
    {RuleId::MeshSizeImplausible, "ZV327", "mesh-size-implausible", WARNING,
     "the mesh {file} is {size} centimetres: {why}", "Model in centimetres, or convert the unit when exporting."},
    {RuleId::RootNotKept, "ZV328", "root-not-kept", ERROR,
     "the path {path} cannot be remembered in the settings: {why}",
     "Put the repository into a folder with a plainer "
     "path."},
    {RuleId::FileUnreadable, "ZV329", "file-unreadable", ERROR, "{file} cannot be opened: {why}",
     "Give the people who use the repository the right to read it."},
    {RuleId::RootWithoutSeparator, "ZV330", "root-without-separator", ERROR,
     "the root {path} does not end in a backslash: no texture is found below it",
     "Choose the repository in the plug-in's window, which keeps the backslash, or add it."},

    {RuleId::CharacterIncomplete, "ZV401", "character-incomplete", ERROR,
     "the character has no {kind}, and without one nothing can be built", "Describe at least one."},
    {RuleId::ClothingNeverWorn, "ZV402", "clothing-never-worn", ERROR,
     "the clothing can be worn in no pose ({why}): \"Create\" is offered and does nothing",
     "See the findings about its pictures and meshes."},
    {RuleId::PoseNeverWorn, "ZV403", "pose-never-worn", WARNING, "no clothing can be worn in the pose ({why})",
     "See the findings about the clothes' pictures and meshes in this pose."},
    {RuleId::NoSkinShown, "ZV404", "no-skin-shown", ERROR,
     "none of the character's skins is shown ({why}), so nothing can be built", "See the findings about its skins."},
    {RuleId::ClothingWithoutStyle, "ZV405", "clothing-without-style", ERROR,
     "the clothing has no \"material\", and without a style nothing can be built",
     "Describe at least one style: a \"material\" in the clothing."},
    {RuleId::AssetCategoryUnnamed, "ZV406", "asset-category-unnamed", ERROR,
     "the asset has no \"category\" and is on no tab", "Name the id of a category in \"category\"."},
    {RuleId::AssetCategoryUnknown, "ZV407", "asset-category-unknown", ERROR,
     "the character has no category \"{id}\": the asset is on no tab{hint}",
     "Correct \"category\", or describe the "
     "category."},
    {RuleId::AssetNotInPose, "ZV408", "asset-not-in-pose", HINT,
     "the asset matrix has no row for the asset in the pose \"{pose}\": it is not offered there",
     "Add a row for each pose in which the asset may be carried."},
    {RuleId::AssetInNoPose, "ZV409", "asset-in-no-pose", ERROR,
     "the asset matrix has no row for the asset in any pose: it is never offered",
     "Add a row for each pose in which the asset may be carried, or make its \"type\" \"specific\"."},
    {RuleId::TypeSpelling, "ZV410", "type-spelling", ERROR, "\"type\" is \"{value}\", which counts as \"common\"{hint}",
     "Write \"common\", \"specific\" or \"global\", in small letters."},
    {RuleId::GlobalUnnamed, "ZV411", "global-unnamed", ERROR,
     "the asset is \"global\" and has no \"globalID\": it is never offered",
     "Name the id of the shared asset in "
     "\"globalID\"."},
    {RuleId::GlobalUnknown, "ZV412", "global-unknown", ERROR,
     "there is no shared asset \"{id}\": the asset is never offered{hint}",
     "Correct \"globalID\", or describe the "
     "asset in \"globalAssets\"."},
    {RuleId::GlobalWithoutType, "ZV413", "global-without-type", ERROR,
     "the shared asset lacks type=\"global\": it is looked for in the folder of the character, and never shown",
     "Add type=\"global\"."},
    {RuleId::GlobalUnreferenced, "ZV414", "global-unreferenced", HINT,
     "no character refers to the shared asset: it is never offered",
     "Add an asset with type=\"global\" and its \"globalID\" to the characters that may use it."},
    {RuleId::ReferenceOwnFields, "ZV415", "reference-own-fields", HINT,
     "the asset stands for a shared one: its own {what} is never used",
     "Take it out, or change it in the shared asset."},
    {RuleId::ExcludeWithoutId, "ZV416", "exclude-without-id", WARNING, "the exclude has no \"id\" and excludes nothing",
     "Name the asset in \"id\"."},
    {RuleId::ExcludeUnknown, "ZV417", "exclude-unknown", WARNING,
     "the character has no asset \"{id}\": the exclude excludes nothing{hint}",
     "Correct \"id\", or take the exclude "
     "out."},
    {RuleId::SelectExcluded, "ZV418", "select-excluded", WARNING,
     "the clothing selects the asset \"{id}\" and excludes it: the exclude wins", "Keep one of the two."},
    {RuleId::SelectWithoutAsset, "ZV419", "select-without-asset", WARNING,
     "the select has no \"asset_id\" and selects nothing", "Name the asset in \"asset_id\"."},
    {RuleId::SelectUnknownAsset, "ZV420", "select-unknown-asset", WARNING,
     "the character has no asset \"{id}\": the select selects nothing{hint}",
     "Correct \"asset_id\", or take the select "
     "out."},
    {RuleId::SelectUnknownMaterial, "ZV421", "select-unknown-material", WARNING,
     "the asset has no material \"{id}\": the select selects nothing{hint}", "Correct \"material_id\"."},
    {RuleId::SelectWithoutMaterial, "ZV422", "select-without-material", WARNING,
     "the asset \"{id}\" has materials and the select names none: it selects nothing",
     "Name the material in "
     "\"material_id\"."},
    {RuleId::SelectsInOneCategory, "ZV423", "selects-in-one-category", WARNING,
     "the category \"{category}\" takes one asset, and the clothing selects several: the last wins",
     "Select one, or make the category's \"selection\" \"multiple\"."},
    {RuleId::SelectedGlobalDropped, "ZV424", "selected-global-dropped", WARNING,
     "the shared asset that the clothing selects is dropped again when the category \"{category}\" chooses one",
     "Put shared assets into the last category, or make the later one's \"selection\" \"multiple\"."},
    {RuleId::ValueNotUnderstood, "ZV425", "value-not-understood", WARNING,
     "\"{attribute}\" is \"{value}\", which is not understood: {meaning}; it takes \"{one}\" "
     "and \"{other}\"",
     "Write the text exactly as it is read; letter case counts."},
    {RuleId::RequiredCategoryEmpty, "ZV426", "required-category-empty", WARNING,
     "the category is required, and nothing of it is offered in the pose \"{pose}\"",
     "Add rows to the asset matrix, so that something is offered in each pose."},
    {RuleId::CategoryEmpty, "ZV427", "category-empty", HINT, "no asset is in the category, so it has no tab",
     "Take it out, or put assets into it."},
    {RuleId::AddressRefused, "ZV428", "address-refused", HINT,
     "\"url\" is \"{value}\", which is no address of the web: a click on the grey picture opens nothing",
     "Write a whole address with http:// or https://."},
    {RuleId::AddressWithoutQuery, "ZV429", "address-without-query", HINT,
     "\"&gid=\" and the clothing are appended to \"url\", which has no \"?\"",
     "Write an address to which \"&gid=...\" can be appended."},
    {RuleId::AddressMissing, "ZV430", "address-missing", HINT,
     "some clothing is not available in the pose and it has no \"url\": a click on the grey picture opens nothing",
     "Name the web page in \"url\" where it can be had."},
    {RuleId::AddressNeverOpened, "ZV431", "address-never-opened", HINT,
     "the \"url\" of a {kind} is never opened: the one of the pose is", "Take it out."},
    {RuleId::AssetAlwaysExcluded, "ZV432", "asset-always-excluded", ERROR,
     "every clothing excludes the asset: it is never offered", "Take an exclude out."},

    {RuleId::PoseWithoutName, "ZV501", "pose-without-name", ERROR,
     "the pose has no \"name\": the character is built without body and without the assets that the pose asks for",
     "Give it a \"name\"."},
    {RuleId::ClothingWithoutName, "ZV502", "clothing-without-name", ERROR,
     "the clothing has no \"name\": it is chosen and not built", "Give it a \"name\"."},
    {RuleId::AssetUnbuildable, "ZV503", "asset-unbuildable", ERROR,
     "the asset has no \"{attribute}\": it is chosen and not built", "Give it one."},
    {RuleId::MandatoryWithoutId, "ZV504", "mandatory-without-id", WARNING,
     "the pose asks for an asset without naming it in \"id\": nothing is built", "Name the asset in \"id\"."},
    {RuleId::MandatoryUnknown, "ZV505", "mandatory-unknown", WARNING,
     "the pose asks for the asset \"{id}\", which the character does not have{hint}",
     "Correct \"id\", or describe the "
     "asset."},
    {RuleId::MandatoryNotPlaced, "ZV507", "mandatory-not-placed", ERROR,
     "the asset matrix has no row for the asset \"{id}\" in this pose, which asks for it: it stands at the origin, "
     "without material",
     "Add the row."},
    {RuleId::MandatoryWithoutMaterial, "ZV508", "mandatory-without-material", WARNING,
     "the pose asks for the asset \"{id}\", which has materials to choose from and no \"material\" of its own: it is "
     "built without one",
     "Give the asset itself a \"material\", too."},
    {RuleId::MandatoryBuiltTwice, "ZV509", "mandatory-built-twice", WARNING,
     "the pose asks for the asset \"{id}\", which can be chosen as well: it is built twice then",
     "Take it out of its category, or out of the pose."},
    {RuleId::MandatoryExcluded, "ZV510", "mandatory-excluded", WARNING,
     "the pose asks for the asset \"{id}\", which {why}: it is built all the same",
     "Take it out of the pose, or mend what keeps it from being offered."},
    {RuleId::MaterialUnnamed, "ZV511", "material-unnamed", WARNING,
     "the {kind} has no \"material\": what is built with it has none",
     "Name a material of the libraries in "
     "\"material\"."},
    {RuleId::MaterialNotFound, "ZV512", "material-not-found", WARNING,
     "no library holds the material \"{name}\" (searched: {libraries})",
     "Correct \"material\", or put the material into "
     "one of the libraries."},
    {RuleId::MaterialIsMap, "ZV513", "material-is-map", WARNING,
     "\"{name}\" is a texture map and no material (searched: {libraries})", "Name a material."},
    {RuleId::LibraryUnreadable, "ZV514", "library-unreadable", WARNING,
     "the material library {file} cannot be read: {why}", "Save the library again."},
    {RuleId::LibraryNotChecked, "ZV515", "library-not-checked", HINT,
     "{count} of the material libraries are in 3ds Max's own form, which cannot be read here: materials and textures "
     "were not checked",
     "See to them in 3ds Max."},
    {RuleId::MaterialContentsDiffer, "ZV516", "material-contents-differ", WARNING,
     "the material \"{name}\" is not the same in {file} and {other}: in a scene the one that comes first is used for "
     "both",
     "Give different materials different names."},
    {RuleId::TextureMissing, "ZV517", "texture-missing", WARNING,
     "the material \"{name}\" needs the texture {file}, which is not there",
     "Put the texture into the folder maps of "
     "the repository: all textures are looked for there, by file name alone."},
    {RuleId::TextureNamesMeet, "ZV518", "texture-names-meet", WARNING,
     "textures of different folders, {one} and {other}, become one file: {file}",
     "Give different textures different file names."},
    {RuleId::ScaledParameterOdd, "ZV519", "scaled-parameter-odd", HINT,
     "parameter 22 of the material \"{name}\" {why}: it has the wrong size where the scene's unit is not centimetres",
     "See to the material in 3ds Max."},
};

bool areAlike(const char* left, const char* right) {
  const auto isSame = [](char a, char b) {
    return std::toupper(static_cast<unsigned char>(a)) == std::toupper(static_cast<unsigned char>(b));
  };
  return std::equal(left, left + std::strlen(left), right, right + std::strlen(right), isSame);
}

}  // namespace

const char* nameOf(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    case Severity::Hint:
      return "hint";
  }
  return "";
}

const Rule& ruleOf(RuleId id) { return RULES[static_cast<std::size_t>(id)]; }

const Rule* findRule(const char* code) {
  const auto found =
      std::find_if(RULES.begin(), RULES.end(), [code](const Rule& rule) { return areAlike(rule.code, code); });
  return found == RULES.end() ? nullptr : &*found;
}

const std::vector<Rule>& allRules() { return RULES; }

}  // namespace check
