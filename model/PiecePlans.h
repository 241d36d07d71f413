#pragma once

#include <string>

#include "model/PiecePlan.h"

namespace ZORVEL {

class CharacterData;

/// The one place that decides what the parts of a character are built from. It asks the loaded model only, neither the
/// selection nor the disk.
class PiecePlans {
 public:
  /// The root ends in a separator. The character must outlive this and its plans.
  PiecePlans(const CharacterData& character, std::wstring root);

  /// `materialRecord` is null when the record itself names its material. A null record has no fields.
  static BuildElement Describe(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord);

  /// A null skin or style asks for no material.
  PiecePlan Body(const DataContainer& pose, const DataContainer* skin) const;
  PiecePlan Clothing(const DataContainer& cloth, const DataContainer* style, const DataContainer& pose) const;
  /// `material` is null when the asset itself names its material. What has no place gets no material.
  PiecePlan Asset(ElementKind kind, const DataContainer& asset, const DataContainer* material,
                  const std::wstring& poseId) const;
  /// The asset that an entry of the pose asks for.
  PiecePlan Mandatory(const DataContainer* entry, const std::wstring& poseId) const;

 private:
  void PlanShared(PiecePlan& plan, const DataContainer* materialRecord, const std::wstring& poseId) const;
  void PlanOwn(PiecePlan& plan, const DataContainer* materialRecord, const std::wstring& poseId) const;
  /// By the row for that id of an asset, which may be null.
  void Place(PiecePlan& plan, const wchar_t* assetId, const std::wstring& poseId) const;
  /// The character's own libraries follow the first.
  void AskForMaterial(PiecePlan& plan, const DataContainer* record, const std::wstring& firstLibrary) const;

  const CharacterData& m_character;
  std::wstring m_root;
  std::wstring m_folder;  // the character's, a whole path
};

}  // namespace ZORVEL
