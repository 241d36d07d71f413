#include "plugin/DebugWindow.h"

#include "plugin/DebugWindowClass.h"

namespace ZORVEL {

void DebugWindow::CreateDebugWindow() {
  if (!MaxForm::CanBeMade()) return;
  // Its parent, the host's main window, destroys it; or whoever destroys all forms.
  DebugWindowClass::window = new DebugWindowClass;
  DebugWindowClass::window->ShowModeless();
  DebugWindowClass::window->Activate();
}

void DebugWindow::AddDebugWindowMessage(const wchar_t* text) {
  if (DebugWindowClass::window != nullptr) DebugWindowClass::window->AddText(text);
}

void DebugWindow::FreeDebugWindow() {
  if (DebugWindowClass::window != nullptr) DebugWindowClass::window->close();
}

}  // namespace ZORVEL
