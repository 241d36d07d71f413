#pragma once

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// The user's current choice. Character, cloth, pose, skin and style are kept as "id" texts, assets as unique ids.
/// Nothing here follows the store: what it names may be gone, and a lookup that fails means that nothing is chosen.
/// Returned texts are valid until the value is set again.
class Selection2 {
 public:
  /// Never null: empty when none is chosen.
  static const wchar_t* GetCharacter();
  /// Null when none is chosen; so for the three below.
  static const wchar_t* GetCloth();
  static const wchar_t* GetPose();
  static const wchar_t* GetSkin();
  static const wchar_t* GetStyle();
  /// Null or an empty text takes the choice back; so for the four below.
  static void SetCharacter(const wchar_t* id);
  static void SetCloth(const wchar_t* id);
  static void SetPose(const wchar_t* id);
  static void SetSkin(const wchar_t* id);
  static void SetStyle(const wchar_t* id);

  /// Assets or materials, in order of choice; one may be in the list twice.
  static void AddAsset(int unique);
  /// Takes the first occurrence out.
  static void RemoveAsset(int unique);
  static void ClearAssets();
  static bool CheckSelectedAsset(int unique);
  static int GetAssetCount();
  /// 0 for an index outside the list, which is logged.
  static int GetAsset(int index);
  /// Drops what belongs to the category, and every id that is no asset of the character (a global one, for instance).
  /// Does nothing at all when one of the chosen assets has no category.
  static void RemoveAssetsOfCategory(const DataContainer* category, const CharacterData* character);
  /// -1 without category or character, else 0: an asset of a required category is replaced, never taken away.
  static int CountSelectedInCategory(const DataContainer* category, const CharacterData* character);

  /// Takes every choice back but the style.
  static void Reset();
};

}  // namespace ZORVEL
