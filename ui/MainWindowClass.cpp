#include "ui/MainWindowClass.h"

#include "core/Settings.h"
#include "ui/Log.h"
#include "ui/Logo.h"
#include "ui/Texts.h"

namespace ZORVEL {

namespace {

const int NARROWEST_REFIT = 500;

}  // namespace

MainWindowClass* MainWindowClass::window = nullptr;

MainWindowClass::MainWindowClass() {
  LogInfo(L"Create main window...");
  setAttribute(Qt::WA_DeleteOnClose);
  SetMinimum(525, 500);
  SetSize(base_width, base_height);
  AddLogo();
  m_characterWidget2.CreateSelektor(*this);
  m_characterInfo.CreateInfo(*this);
  m_placementWidget.Create(*this);
  m_generalSelectorWidget.CreateWidget(*this);
  m_clothWidget.Create(*this, GetHeight());
  m_menu.Create(*this);
}

MainWindowClass::~MainWindowClass() {
  if (window == this) window = nullptr;
  // The controls go before the objects that answer their events.
  qDeleteAll(findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
}

void MainWindowClass::AddLogo() {
  auto* logo = new Logo;
  logo->setAccessibleName(QStringLiteral("ZORVEL"));
  AddControl(logo, QRect(QPoint(12, 37), Logo::Size()));
}

void MainWindowClass::UpdateTitle() {
  setWindowTitle(QStringLiteral("ZORVEL Manager 1.0 - ") + Texts::FromWide(Settings::GetPath()));
}

void MainWindowClass::Rebuild() {
  // A form that is resized and back again flickers, and not every desktop obeys; only the layout is.
  BeginLayoutAt(base_width, base_height);
  m_characterWidget2.Rebuild(*this);
  m_generalSelectorWidget.Rebuild(*this);
  m_clothWidget.Rebuild(*this, GetHeight());
  EndLayout();
  UpdateCharacterSelectionFromGUI();
}

void MainWindowClass::RebuildTabs() {
  m_generalSelectorWidget.RebuildExeptPoses(GetWidth());
  m_clothWidget.UpdateWidth(GetWidth());
}

void MainWindowClass::UpdateCharacterSelectionFromGUI() {
  if (GetWidth() < NARROWEST_REFIT) return;
  LogInfo(L"update gui width...");
  m_generalSelectorWidget.UpdateWidget(GetWidth(), GetHeight());
  m_characterInfo.UpdateInfo();
  m_placementWidget.Update();
  m_clothWidget.Update(GetWidth());
}

void MainWindowClass::UpdateElementSelection() {
  m_generalSelectorWidget.UpdateSelection();
  m_characterInfo.UpdateInfo();
}

void MainWindowClass::UpdateInfoField() { m_characterInfo.UpdateInfo(); }

void MainWindowClass::UpdateSelections() {
  m_generalSelectorWidget.UpdatePoseSelection();
  m_generalSelectorWidget.UpdateSkinSelection();
}

void MainWindowClass::ResizeEvent() {
  // The form is given its first size before it has controls.
  if (m_clothWidget.GetControl() == nullptr || GetWidth() < NARROWEST_REFIT) return;
  m_generalSelectorWidget.UpdateWidth(GetWidth());
  m_clothWidget.UpdateWidth(GetWidth());
}

void MainWindowClass::CloseEvent() {
  LogInfo(L"Close main window...");
  window = nullptr;
}

}  // namespace ZORVEL
