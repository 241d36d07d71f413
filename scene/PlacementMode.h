#pragma once

#include <cmdmode.h>

#include "scene/PlacementProc.h"

namespace ZORVEL {

/// The command mode in which the mouse places the new character.
class PlacementMode : public CommandMode {
 public:
  PlacementMode();
  ~PlacementMode() override;
  PlacementMode(const PlacementMode&) = delete;
  PlacementMode& operator=(const PlacementMode&) = delete;

  int Class() override;
  int ID() override;
  MouseCallBack* MouseProc(int* numPoints) override;
  ChangeForegroundCallback* ChangeFGProc() override;
  BOOL ChangeFG(CommandMode* oldMode) override;
  void EnterMode() override;
  void ExitMode() override;

 private:
  PlacementProc m_proc;
  ChangeFGObject m_foreground;
};

}  // namespace ZORVEL
