#pragma once

#include "model/Refusal.h"

namespace ZORVEL {

class CharacterData;
class DataContainer;

/// Marks with FLAG_VALID which records have their folder on disk. Nothing is removed, and it may run any number of
/// times.
class RepositoryValidation {
 public:
  /// Looks below the repository root of the settings.
  static void ValidateGlobalAssets();
  /// An asset that stands for a global one takes over its mark, so the global assets come first. The elements of a
  /// character without a folder keep the marks they had.
  static void ValidateCharacter(CharacterData* character);
  /// False when the element is marked invalid, or when an argument is null, which marks nothing.
  static bool ValidateElement(DataContainer* element, const wchar_t* baseFolder);

  /// Why the last run has left a character, one of its clothes, poses or assets, or a global asset without the mark;
  /// Nothing when it has it. Asks no disk. `character` is null for a global asset.
  static Refusal WhyUnmarked(const DataContainer& record, const CharacterData* character);
};

}  // namespace ZORVEL
