#include "ui/MainWindow.h"

#include <exception>

#include "core/Debug.h"
#include "ui/Log.h"
#include "ui/MainWindowClass.h"

namespace ZORVEL {

namespace {

void LogError(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_ERROR, text); }

MainWindowClass* MakeForm() {
  if (!MaxForm::CanBeMade()) return nullptr;
  try {
    return new MainWindowClass;
  } catch (const std::exception&) {
    return nullptr;
  }
}

void OpenForm() {
  LogInfo(L"MainWindow::OpenMainWindow : create...");
  MainWindowClass* form = MakeForm();
  MainWindowClass::window = form;
  if (form == nullptr) return LogError(L"MainWindow::OpenMainWindow : could not create window...");
  form->ShowModeless();
  form->Activate();
  form->UpdateTitle();
  form->UpdateCharacterSelectionFromGUI();
}

void ShowForm(MainWindowClass& form) {
  LogInfo(L"MainWindow::OpenMainWindow : display...");
  form.showNormal();
  form.Activate();
  form.UpdateCharacterSelectionFromGUI();
  form.UpdateTitle();
}

/// What fails in a refresh stays here: the command that asked for it has done its work by then.
template <class Refresh>
void RefreshWindow(const wchar_t* noWindow, Refresh refresh) {
  try {
    if (MainWindowClass::window == nullptr) return LogError(noWindow);
    refresh(*MainWindowClass::window);
  } catch (const std::exception&) {
    // The window shows what it had; the next refresh makes it anew.
  }
}

}  // namespace

void MainWindow::OpenMainWindow() {
  if (MainWindowClass::window == nullptr) return OpenForm();
  ShowForm(*MainWindowClass::window);
}

void MainWindow::Rebuild() {
  RefreshWindow(L"MainWindow::Rebuild : no window..", [](MainWindowClass& form) {
    form.Rebuild();
    form.UpdateTitle();
  });
}

void MainWindow::RebuildTabs() {
  RefreshWindow(L"MainWindow::RebuildTabs : no window..", [](MainWindowClass& form) { form.RebuildTabs(); });
}

void MainWindow::UpdateCharacterSelectionFromGUI() {
  RefreshWindow(L"MainWindow::UpdateCharacterSelectionFromGUI : no window..",
                [](MainWindowClass& form) { form.UpdateCharacterSelectionFromGUI(); });
}

void MainWindow::UpdateElementSelection() {
  RefreshWindow(L"MainWindow::UpdateElementSelection : no window..",
                [](MainWindowClass& form) { form.UpdateElementSelection(); });
}

// The text names the entry above; it is kept as it is.
void MainWindow::UpdateInfo() {
  RefreshWindow(L"MainWindow::UpdateElementSelection : no window..",
                [](MainWindowClass& form) { form.UpdateInfoField(); });
}

}  // namespace ZORVEL
