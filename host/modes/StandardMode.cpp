#include "host/modes/StandardMode.h"

#include <hold.h>
#include <maxapi.h>

namespace host {

namespace {

void select(INode* node, bool adds) {
  Interface* host = GetCOREInterface();
  theHold.Begin();
  if (node != nullptr) {
    host->SelectNode(node, adds ? 0 : 1);
  } else if (!adds) {
    host->ClearNodeSelection(FALSE);
  }
  theHold.Accept(L"Select");
  host->RedrawViews(host->GetTime());
}

}  // namespace

MouseCallBack* StandardMode::MouseProc(int* numPoints) {
  *numPoints = 2;
  return this;
}

int StandardMode::proc(HWND window, int msg, int /*point*/, int flags, IPoint2 m) {
  if (msg != MOUSE_POINT || (flags & MOUSE_LBUTTON) == 0) return TRUE;
  select(GetCOREInterface()->PickNode(window, m), (flags & MOUSE_CTRL) != 0);
  return TRUE;
}

}  // namespace host
