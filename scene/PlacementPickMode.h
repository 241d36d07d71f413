#pragma once

#include <maxapi.h>

namespace ZORVEL {

/// Accepts what a character can stand on: geometry, but neither the node being placed nor its direct children.
class PlacementPickMode : public PickNodeCallback {
 public:
  BOOL Filter(INode* node) override;
};

}  // namespace ZORVEL
