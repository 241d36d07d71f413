#include "scene/Placement.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "scene/PlacementMode.h"
#include "scene/PlacementState.h"

namespace ZORVEL {

void Placement::StartPlacement(INode* node) {
  PlacementState& state = PlacementState::Get();
  if (state.node != nullptr) {
    Debug::AddDebugMessage(DEBUG_WARNING, L"Placement::StartPlacement node alreay set!");
  }
  state.node = node;
  // The host is asked for first, so that it outlives the mode that takes its leave of it.
  Interface* host = GetCOREInterface();
  static PlacementMode mode;
  state.step = STEP_PLACE;
  host->SetCommandMode(&mode);
}

}  // namespace ZORVEL
