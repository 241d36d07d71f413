#include "ui/MainWindow.h"

#include <exception>

#include "core/Debug.h"
#include "ui/Log.h"
#include "ui/MainWindowClass.h"

namespace ZORVEL {

namespace {

void LogError(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_ERROR, text); }

MainWindowClass* makeWindow() {
  if (!MaxForm::CanBeMade()) return nullptr;
  try {
    return new MainWindowClass;
  } catch (const std::exception&) {
    return nullptr;
  }
}

void createWindow() {
  LogInfo(L"MainWindow::OpenMainWindow : create...");
  MainWindowClass* form = makeWindow();
  MainWindowClass::window = form;
  if (form == nullptr) return LogError(L"MainWindow::OpenMainWindow : could not create window...");
  form->ShowModeless();
  form->Activate();
  form->UpdateTitle();
  form->UpdateCharacterSelectionFromGUI();
}

void displayWindow(MainWindowClass& form) {
  LogInfo(L"MainWindow::OpenMainWindow : display...");
  form.showNormal();
  form.Activate();
  form.UpdateCharacterSelectionFromGUI();
  form.UpdateTitle();
}

}  // namespace

void MainWindow::OpenMainWindow() {
  if (MainWindowClass::window == nullptr) return createWindow();
  displayWindow(*MainWindowClass::window);
}

void MainWindow::Rebuild() {
  if (MainWindowClass::window == nullptr) return LogError(L"MainWindow::Rebuild : no window..");
  MainWindowClass::window->Rebuild();
  MainWindowClass::window->UpdateTitle();
}

void MainWindow::RebuildTabs() {
  if (MainWindowClass::window == nullptr) return LogError(L"MainWindow::RebuildTabs : no window..");
  MainWindowClass::window->RebuildTabs();
}

void MainWindow::UpdateCharacterSelectionFromGUI() {
  if (MainWindowClass::window == nullptr) {
    return LogError(L"MainWindow::UpdateCharacterSelectionFromGUI : no window..");
  }
  MainWindowClass::window->UpdateCharacterSelectionFromGUI();
}

void MainWindow::UpdateElementSelection() {
  if (MainWindowClass::window == nullptr) return LogError(L"MainWindow::UpdateElementSelection : no window..");
  MainWindowClass::window->UpdateElementSelection();
}

// The text names the entry above; it is kept as it is.
void MainWindow::UpdateInfo() {
  if (MainWindowClass::window == nullptr) return LogError(L"MainWindow::UpdateElementSelection : no window..");
  MainWindowClass::window->UpdateInfoField();
}

}  // namespace ZORVEL
