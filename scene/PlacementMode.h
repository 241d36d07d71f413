#pragma once

#include <cmdmode.h>

#include "scene/PlacementProc.h"

namespace ZORVEL {

/// The command mode in which the mouse places the new character.
class PlacementMode : public CommandMode {
 public:
  PlacementMode();
  PlacementMode(const PlacementMode&) = delete;
  PlacementMode& operator=(const PlacementMode&) = delete;

  int Class() override;
  int ID() override;
  MouseCallBack* MouseProc(int* numPoints) override;
  ChangeForegroundCallback* ChangeFGProc() override;
  BOOL ChangeFG(CommandMode* oldMode) override;
  void EnterMode() override;
  void ExitMode() override;

  /// The prompt of the second step, over that of the first. Both go when the mode is left.
  void AskForRotation();

 private:
  void Ask(const wchar_t* prompt);

  PlacementProc m_proc;
  ChangeFGObject m_foreground;
  /// How many of the host's prompts are this mode's.
  int m_prompts = 0;
};

}  // namespace ZORVEL
