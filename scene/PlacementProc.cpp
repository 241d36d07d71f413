#include "scene/PlacementProc.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "scene/Placement.h"
#include "scene/SurfaceHit.h"
#include "scene/UnitFactor.h"

namespace ZORVEL {

namespace {

const double RADIANS_PER_PIXEL = 0.01;

/// Only position changes: the character keeps its turn and size. False when the pixel shows no place to stand.
bool MoveTo(Matrix3& tm, HWND window, const IPoint2& m) {
  Point3 position;
  if (!SurfaceHit::Find(window, m, position)) return false;
  tm.SetTrans(position);
  return true;
}

/// Turned from scratch about Z by the way since the click that fixed the position; tilt and uneven scale are discarded.
Matrix3 Turned(const Point3& position, const IPoint2& m) {
  const auto pixels = static_cast<float>(m.x - Placement::GetRotateStart().x);
  const float factor = UnitFactor();
  Matrix3 tm(TRUE);
  tm.Scale(Point3(factor, factor, factor), FALSE);
  tm.RotateZ(static_cast<float>(pixels * RADIANS_PER_PIXEL));
  tm.Translate(position);
  return tm;
}

void FollowMouse(HWND window, const IPoint2& m) {
  INode* node = Placement::GetNode();
  if (node == nullptr) {
    Debug::AddDebugMessage(DEBUG_ERROR, L"No node selected for placement");
    return;
  }
  Matrix3 tm = node->GetNodeTM(0);
  if (Placement::GetStep() == PlacementStep::Place && !MoveTo(tm, window, m)) return;
  if (Placement::GetStep() == PlacementStep::Rotate) tm = Turned(tm.GetTrans(), m);
  node->SetNodeTM(0, tm);
  Interface* host = GetCOREInterface();
  host->RedrawViews(host->GetTime(), REDRAW_NORMAL);
}

}  // namespace

int PlacementProc::proc(HWND window, int msg, int /*point*/, int flags, IPoint2 m) {
  if (msg == MOUSE_POINT && (flags & MOUSE_LBUTTON) != 0) Placement::Click(m);
  if (msg == MOUSE_FREEMOVE) FollowMouse(window, m);
  if (msg == MOUSE_PROPCLICK) Placement::Cancel();
  return TRUE;
}

}  // namespace ZORVEL
