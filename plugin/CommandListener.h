#pragma once

#include <initializer_list>

namespace ZORVEL {

struct BuildReport;

enum class Command {
  CallMainWindow,
  ReloadRepository,
  ResetRepository,
  CreateCharacter,
  SetSelectedCharacterUnique,
  SetSelectedClothUnique,
  SetSelectedPose,
  SetSelectedSkin,
  SetSelectedStyle,
  SetSelectedAsset,
  SetDeselectedAsset
};

/// Hears what the window and the action ask for, and what became of a character. Must not throw.
class CommandListener {
 public:
  virtual ~CommandListener() = default;
  /// Before the command acts, also when it then finds that it must not. `uniques` as its arguments have them.
  virtual void BeforeCommand(Command /*command*/, std::initializer_list<unsigned int> /*uniques*/, bool /*updateGui*/) {
  }
  /// After each try to build a character, before it is placed.
  virtual void CharacterBuilt(const BuildReport& /*report*/) {}
};

}  // namespace ZORVEL
