#include "scene/Placement.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "scene/PlacementMode.h"

namespace ZORVEL {

namespace {

/// A built-in command that makes one of the host's own modes current, which ends the plug-in's.
const int END_MODE_COMMAND = 91;

INode* placedNode = nullptr;
PlacementStep step = PlacementStep::Idle;
IPoint2 rotateStart;
/// Made for the first placement and kept until the plug-in stops. Nothing destroys it when the process ends: the host
/// may be gone by then.
PlacementMode* mode = nullptr;

/// From here on nobody takes the node for the one being placed. Null when there was none.
INode* TakeNode() {
  INode* node = placedNode;
  placedNode = nullptr;
  step = PlacementStep::Idle;
  return node;
}

void LeaveMode() {
  if (mode == nullptr) return;
  Interface* host = GetCOREInterface();
  if (host->GetCommandMode() == mode) {
    host->ExecuteMAXCommand(END_MODE_COMMAND);
  } else {
    // It may wait below a mode of somebody else's, which goes on.
    host->DeleteMode(mode);
  }
}

/// What was placed so far is the node in its group; from now on it is the group.
void MovePlacementToGroupHead(INode& node) {
  INode* head = node.GetParentNode();
  if (node.IsGroupMember() == FALSE || head == nullptr) return;
  Matrix3 tm = node.GetNodeTM(0);
  Matrix3 identity(TRUE);
  node.SetNodeTM(0, identity);
  head->SetNodeTM(0, tm);
}

void FixPosition(const IPoint2& m) {
  step = PlacementStep::Rotate;
  rotateStart = m;
  Debug::AddDebugMessage(DEBUG_INFO, L"Clicked in place mode...");
  mode->AskForRotation();
}

void FixRotation() {
  MovePlacementToGroupHead(*placedNode);
  GetCOREInterface()->SelectNode(placedNode, 1);
  Placement::End();
  Debug::AddDebugMessage(DEBUG_INFO, L"Clicked in rotate mode...");
}

}  // namespace

void Placement::StartPlacement(INode* node) {
  if (node == nullptr) return;
  if (placedNode != nullptr) {
    Debug::AddDebugMessage(DEBUG_WARNING, L"Placement::StartPlacement node alreay set!");
  }
  placedNode = node;
  if (mode == nullptr) mode = new PlacementMode;
  step = PlacementStep::Place;
  GetCOREInterface()->SetCommandMode(mode);
}

INode* Placement::GetNode() { return placedNode; }

PlacementStep Placement::GetStep() { return step; }

const IPoint2& Placement::GetRotateStart() { return rotateStart; }

void Placement::Click(const IPoint2& m) {
  if (step == PlacementStep::Place) return FixPosition(m);
  if (step == PlacementStep::Rotate) FixRotation();
}

void Placement::Cancel() {
  Debug::AddDebugMessage(DEBUG_INFO, L"cancel placement...");
  // Taken first: the deletion of a node that is being placed ends the placement by itself.
  INode* node = TakeNode();
  if (node == nullptr) return;
  Interface* host = GetCOREInterface();
  while (node->NumberOfChildren() > 0) host->DeleteNode(node->GetChildNode(0), TRUE, FALSE);
  host->DeleteNode(node, TRUE, FALSE);
  LeaveMode();
}

void Placement::End() {
  TakeNode();
  LeaveMode();
}

void Placement::Free() {
  End();
  if (mode == nullptr) return;
  GetCOREInterface()->DeleteMode(mode);
  delete mode;
  mode = nullptr;
}

}  // namespace ZORVEL
