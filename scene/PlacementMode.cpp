#include "scene/PlacementMode.h"

#include <maxapi.h>

#include "scene/Placement.h"

namespace ZORVEL {

namespace {

const int MODE_ID = 0x782F67;
/// One for the place, one for the turn.
const int POINTS = 2;

}  // namespace

PlacementMode::PlacementMode() : m_foreground(nullptr) {}

int PlacementMode::Class() { return MODIFY_COMMAND; }

int PlacementMode::ID() { return MODE_ID; }

MouseCallBack* PlacementMode::MouseProc(int* numPoints) {
  *numPoints = POINTS;
  return &m_proc;
}

ChangeForegroundCallback* PlacementMode::ChangeFGProc() { return &m_foreground; }

BOOL PlacementMode::ChangeFG(CommandMode* oldMode) { return oldMode->ChangeFGProc() != &m_foreground ? TRUE : FALSE; }

void PlacementMode::EnterMode() {
  Ask(L"Place your ZORVEL Character");
  // Somebody else's mode, for the view say, was on top in the middle of the turn.
  if (Placement::GetStep() == PlacementStep::Rotate) AskForRotation();
}

void PlacementMode::ExitMode() {
  for (; m_prompts > 0; --m_prompts) GetCOREInterface()->PopPrompt();
}

void PlacementMode::AskForRotation() { Ask(L"Rotate your ZORVEL Character"); }

void PlacementMode::Ask(const wchar_t* prompt) {
  GetCOREInterface()->PushPrompt(prompt);
  ++m_prompts;
}

}  // namespace ZORVEL
