#include "ui/MainWindow.h"

#include "core/Debug.h"

namespace ZORVEL {

// There is no form yet, so the entries answer as they do while none is open.

void MainWindow::OpenMainWindow() {
  Debug::AddDebugMessage(DEBUG_INFO, L"MainWindow::OpenMainWindow : create...");
  Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::OpenMainWindow : could not create window...");
}

void MainWindow::Rebuild() { Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::Rebuild : no window.."); }

void MainWindow::RebuildTabs() { Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::RebuildTabs : no window.."); }

void MainWindow::UpdateCharacterSelectionFromGUI() {
  Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::UpdateCharacterSelectionFromGUI : no window..");
}

void MainWindow::UpdateElementSelection() {
  Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::UpdateElementSelection : no window..");
}

// The text names the entry above; it is kept as it is.
void MainWindow::UpdateInfo() {
  Debug::AddDebugMessage(DEBUG_ERROR, L"MainWindow::UpdateElementSelection : no window..");
}

}  // namespace ZORVEL
