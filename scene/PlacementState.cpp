#include "scene/PlacementState.h"

namespace ZORVEL {

PlacementState& PlacementState::Get() {
  static PlacementState state;
  return state;
}

void PlacementState::Clear() {
  node = nullptr;
  step = STEP_IDLE;
}

}  // namespace ZORVEL
