#include "scene/PlacementState.h"

namespace ZORVEL {

PlacementState& PlacementState::Get() {
  static PlacementState state;
  return state;
}

}  // namespace ZORVEL
