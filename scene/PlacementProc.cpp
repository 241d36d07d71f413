#include "scene/PlacementProc.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "scene/PlacementState.h"
#include "scene/SurfaceHit.h"
#include "scene/UnitFactor.h"

namespace ZORVEL {

namespace {

const double RADIANS_PER_PIXEL = 0.01;
/// A built-in command that makes one of the host's own modes current, which ends this one.
const int END_MODE_COMMAND = 91;

/// Only position changes: the character keeps its turn and size. False when the pixel shows no place to stand.
bool MoveTo(Matrix3& tm, HWND window, const IPoint2& m) {
  Point3 position;
  if (!SurfaceHit::Find(window, m, position)) return false;
  tm.SetTrans(position);
  return true;
}

/// Turned from scratch about Z by the way since the click that fixed the position; tilt and uneven scale are discarded.
Matrix3 Turned(const Point3& position, const IPoint2& m) {
  const float pixels = static_cast<float>(m.x - PlacementState::Get().rotateStart.x);
  const float factor = UnitFactor();
  Matrix3 tm(TRUE);
  tm.Scale(Point3(factor, factor, factor), FALSE);
  tm.RotateZ(static_cast<float>(pixels * RADIANS_PER_PIXEL));
  tm.Translate(position);
  return tm;
}

void FollowMouse(HWND window, const IPoint2& m) {
  const PlacementState& state = PlacementState::Get();
  if (state.node == nullptr) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"No node selected for placement");
    return;
  }
  Matrix3 tm = state.node->GetNodeTM(0);
  if (state.step == STEP_PLACE && !MoveTo(tm, window, m)) return;
  if (state.step == STEP_ROTATE) tm = Turned(tm.GetTrans(), m);
  state.node->SetNodeTM(0, tm);
  Interface* host = GetCOREInterface();
  host->RedrawViews(host->GetTime(), REDRAW_NORMAL);
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
  PlacementState::Get().step = STEP_ROTATE;
  PlacementState::Get().rotateStart = m;
  Debug::AddDebugMessage(DEBUG_INFO, L"Clicked in place mode...");
  GetCOREInterface()->PushPrompt(L"Rotate your ZORVEL Character");
}

void FixRotation() {
  INode* node = PlacementState::Get().node;
  Interface* host = GetCOREInterface();
  if (node != nullptr) {
    MovePlacementToGroupHead(*node);
    host->SelectNode(node, 1);
  }
  host->ExecuteMAXCommand(END_MODE_COMMAND);
  PlacementState::Get().Clear();
  Debug::AddDebugMessage(DEBUG_INFO, L"Clicked in rotate mode...");
}

void Click(const IPoint2& m) {
  const int step = PlacementState::Get().step;
  if (step == STEP_PLACE) FixPosition(m);
  if (step == STEP_ROTATE) FixRotation();
}

void Cancel() {
  Debug::AddDebugMessage(DEBUG_INFO, L"cancel placement...");
  INode* node = PlacementState::Get().node;
  if (node == nullptr) return;
  Interface* host = GetCOREInterface();
  while (node->NumberOfChildren() > 0) host->DeleteNode(node->GetChildNode(0), TRUE, FALSE);
  host->DeleteNode(node, TRUE, FALSE);
  PlacementState::Get().Clear();
  host->ExecuteMAXCommand(END_MODE_COMMAND);
}

}  // namespace

int PlacementProc::proc(HWND window, int msg, int /*point*/, int flags, IPoint2 m) {
  if (msg == MOUSE_POINT && (flags & MOUSE_LBUTTON) != 0) Click(m);
  if (msg == MOUSE_FREEMOVE) FollowMouse(window, m);
  if (msg == MOUSE_PROPCLICK) Cancel();
  return TRUE;
}

}  // namespace ZORVEL
