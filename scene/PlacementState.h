#pragma once

#include <ipoint2.h>

class INode;

namespace ZORVEL {

enum PlacementStep : int { STEP_IDLE = 0, STEP_PLACE = 1, STEP_ROTATE = 2 };

/// What is being placed. There is one for the whole plug-in.
struct PlacementState {
  static PlacementState& Get();

  /// Nothing is being placed any more.
  void Clear();

  /// Null when nothing is being placed.
  INode* node = nullptr;
  int step = STEP_IDLE;
  /// Where the click fell that fixed the position, in pixels; only x counts.
  IPoint2 rotateStart;
};

}  // namespace ZORVEL
