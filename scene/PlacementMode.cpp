#include "scene/PlacementMode.h"

#include <maxapi.h>

namespace ZORVEL {

namespace {

const int MODE_ID = 0x782F67;
/// One for the place, one for the turn.
const int POINTS = 2;

}  // namespace

PlacementMode::PlacementMode() : m_foreground(nullptr) {}

// The host must not be left with a mode that is unloaded.
PlacementMode::~PlacementMode() { GetCOREInterface()->DeleteMode(this); }

int PlacementMode::Class() { return MODIFY_COMMAND; }

int PlacementMode::ID() { return MODE_ID; }

MouseCallBack* PlacementMode::MouseProc(int* numPoints) {
  *numPoints = POINTS;
  return &m_proc;
}

ChangeForegroundCallback* PlacementMode::ChangeFGProc() { return &m_foreground; }

BOOL PlacementMode::ChangeFG(CommandMode* oldMode) { return oldMode->ChangeFGProc() != &m_foreground ? TRUE : FALSE; }

void PlacementMode::EnterMode() { GetCOREInterface()->PushPrompt(L"Place your ZORVEL Character"); }

void PlacementMode::ExitMode() { GetCOREInterface()->PopPrompt(); }

}  // namespace ZORVEL
