#pragma once

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// The one store of the loaded repository: characters, the global assets that they share, and the unique ids by which
/// window and commands name any element. It owns its records; whatever it answers is borrowed until Clear. An id of 0
/// means none.
class Data2 {
 public:
  /// Appends an empty character and answers its index, -1 when memory is short.
  static int AddCharacter();
  /// As above, with three fields set and an id bound. Mind the order of the arguments.
  static int AddCharacter(const wchar_t* name, const wchar_t* id, const wchar_t* url);
  static CharacterData* GetCharacter(int index);
  /// The first character with this "id".
  static CharacterData* GetCharacter(const wchar_t* id);
  static int GetCharacterCount();

  /// Appends an empty record and answers its index, -1 when memory is short.
  static int AddGlobalAsset();
  static DataContainer* GetGlobalAsset(int index);
  static int GetGlobalAssetCount();
  static DataContainer* AddMaterialToGlobalaAsset(DataContainer* globalAsset);
  /// Whether a character's asset stands for a global one: its "type" is "global".
  static bool CheckAssetGlobal(const DataContainer* asset);
  /// The global asset that the asset's "globalID" names.
  static DataContainer* GetGlobalAssetForAsset(const DataContainer* asset);
  static DataContainer* FindGlobalAssetById(const wchar_t* id);
  /// `material` is null when the id names the record itself. On false both are left as they were.
  static bool GetGlobalAssetAndMaterial(int unique, DataContainer*& globalAsset, DataContainer*& material);

  /// The element's id, bound on first use: 1010 after a Clear, then in steps of 10. 0 for null.
  static int GetUnique(const DataContainer* element);
  /// Binds an id now, so that ids follow the order of the document.
  static void RegisterID(const DataContainer* element);
  /// The next id, bound to nothing.
  static int NewUnique();
  /// The "id" text of the element that the unique id names; null when it names none or the element has no "id".
  static const wchar_t* GetIdForUnique(int unique);
  /// True for a global asset record, false for one of its materials and everything else.
  static bool IsGlobalAssetUnique(int unique);
  /// Whether the id names the record, leaving `material` null, or one of its children, answered in `material`.
  static bool FindRecordOrChild(int unique, const DataContainer& record, DataContainer*& material);

  /// Destroys everything; ids start anew. The selection has to be reset with it.
  static void Clear();
  /// `true` runs ValidateAll first.
  static void SetValidated(bool validated);
  static bool IsValidated();
  static void ValidateAll();
};

}  // namespace ZORVEL
