#include "scene/PlacementPickMode.h"

#include "scene/Placement.h"

namespace ZORVEL {

BOOL PlacementPickMode::Filter(INode* node) {
  Object* object = node->EvalWorldState(GetCOREInterface()->GetTime(), TRUE).obj;
  if (object != nullptr && object->SuperClassID() != GEOMOBJECT_CLASS_ID) return FALSE;
  INode* placed = Placement::GetNode();
  if (placed == nullptr) return TRUE;
  if (node == placed) return FALSE;
  for (int i = 0; i < placed->NumberOfChildren(); ++i) {
    if (placed->GetChildNode(i) == node) return FALSE;
  }
  return TRUE;
}

}  // namespace ZORVEL
