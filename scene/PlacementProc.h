#pragma once

#include <mouseman.h>

namespace ZORVEL {

/// Moves, turns, fixes or deletes the character that is being placed, as the mouse says.
class PlacementProc : public MouseCallBack {
 public:
  /// TRUE for every message.
  int proc(HWND window, int msg, int point, int flags, IPoint2 m) override;
};

}  // namespace ZORVEL
