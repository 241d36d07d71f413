#pragma once

#include <vector>

#include "check/Severity.h"

namespace check {

/// Everything that the checker can find. The order is that of the codes, which never change their meaning.
enum class RuleId {
  // 1xx: reading the description
  DescriptionMissing,
  DescriptionUnreadable,
  DescriptionNotWellFormed,
  DescriptionBeyondLimits,
  WrongDocumentElement,
  CharacterWithoutAttributes,
  CharacterFolderUnnamed,
  CharacterPreviewsMissing,
  CharacterSkinFolderMissing,
  UnknownElement,
  MisplacedElement,
  ElementLetterCase,
  UnknownAttribute,
  AttributeLetterCase,
  SystemAttribute,
  AssetChildNotMaterial,
  PoseChildNotAsset,
  ListNameExtended,
  ListWithoutName,
  ElementWithoutName,
  ClothingPreviewMissing,
  ClothingOrder,
  MatrixRowIncomplete,
  MatrixRowDuplicate,
  NumberNotWhole,
  MatrixRowUnknownPose,
  MatrixRowUnknownAsset,
  MatrixRowUnused,
  // 2xx: ids and names
  IdMissing,
  ChoiceIdMissing,
  IdEmpty,
  IdDuplicate,
  AssetIdDuplicate,
  CategoryIdDuplicate,
  GlobalIdDuplicate,
  GlobalReferencedTwice,
  IdsDifferInCase,
  FileNamesMeet,
  NameRefusedByWindows,
  CategoryWithoutId,
  // 3xx: files and folders
  ClothingFolderMissing,
  PoseFolderMissing,
  AssetFolderMissing,
  GlobalFolderMissing,
  FolderUnnamed,
  ClothingFolderUnnamed,
  FolderEmpty,
  OverlayMissing,
  PictureUnreadable,
  PictureSize,
  PosePictureMissing,
  ClothingMeshMissing,
  SkinPictureMissing,
  PreviewUnnamed,
  StylePictureMissing,
  AssetPictureMissing,
  MaterialPictureMissing,
  FileLetterCase,
  PathTooLong,
  FolderOutside,
  FileUnreferenced,
  BodyMeshMissing,
  AssetMeshMissing,
  AssetPoseMeshMissing,
  MeshUnreadable,
  MeshNotChecked,
  MeshSizeImplausible,
  RootNotKept,
  FileUnreadable,
  RootWithoutSeparator,
  // 4xx: what is offered
  CharacterIncomplete,
  ClothingNeverWorn,
  PoseNeverWorn,
  NoSkinShown,
  ClothingWithoutStyle,
  AssetCategoryUnnamed,
  AssetCategoryUnknown,
  AssetNotInPose,
  AssetInNoPose,
  TypeSpelling,
  GlobalUnnamed,
  GlobalUnknown,
  GlobalWithoutType,
  GlobalUnreferenced,
  ReferenceOwnFields,
  ExcludeWithoutId,
  ExcludeUnknown,
  SelectExcluded,
  SelectWithoutAsset,
  SelectUnknownAsset,
  SelectUnknownMaterial,
  SelectWithoutMaterial,
  SelectsInOneCategory,
  SelectedGlobalDropped,
  ValueNotUnderstood,
  RequiredCategoryEmpty,
  CategoryEmpty,
  AddressRefused,
  AddressWithoutQuery,
  AddressMissing,
  AddressNeverOpened,
  AssetAlwaysExcluded,
  // 5xx: what is built
  PoseWithoutName,
  ClothingWithoutName,
  AssetUnbuildable,
  MandatoryWithoutId,
  MandatoryUnknown,
  MandatoryNotPlaced,
  MandatoryWithoutMaterial,
  MandatoryBuiltTwice,
  MandatoryExcluded,
  MaterialUnnamed,
  MaterialNotFound,
  MaterialIsMap,
  LibraryUnreadable,
  LibraryNotChecked,
  MaterialContentsDiffer,
  TextureMissing,
  TextureNamesMeet,
  ScaledParameterOdd,
};

/// What holds of every finding of one kind. The texts live as long as the program.
struct Rule {
  RuleId id;
  const char* code;      ///< "ZV101"; what options, reports and other programs name it by
  const char* name;      ///< "description-missing"
  Severity severity;     ///< unless options say otherwise
  const char* sentence;  ///< with {placeholders}, which each finding fills in this order
  const char* remedy;    ///< what the author can do
};

const Rule& ruleOf(RuleId id);
/// Null for a code that there is not; letter case does not matter.
const Rule* findRule(const char* code);
/// In the order of the codes.
const std::vector<Rule>& allRules();

}  // namespace check
