#pragma once

#include "ui/MainWindowCharacterSelector2.h"
#include "ui/MainWindowClothSelector.h"
#include "ui/MainWindowGeneralSelector.h"
#include "ui/MainWindowMenu.h"
#include "ui/MainWindowPlacementWidget.h"
#include "ui/MainWindowSelectionInfo.h"
#include "ui/MaxForm.h"

namespace ZORVEL {

/// The main window: character tree, clothing strip or element pages, what is chosen, and the button that builds it. It
/// shows the model and owns none of it. One at most is open.
class MainWindowClass : public MaxForm {
  Q_OBJECT

 public:
  MainWindowClass();
  ~MainWindowClass() override;

  /// The open window, null when there is none.
  static MainWindowClass* window;

  void UpdateTitle();
  /// Makes every widget anew from the model.
  void Rebuild();
  /// Makes the pages anew, except that of the poses.
  void RebuildTabs();
  /// Below a width of 500 nothing is refreshed.
  void UpdateCharacterSelectionFromGUI();
  void UpdateElementSelection();
  void UpdateInfoField();
  void UpdateSelections();

  const MainWindowCharacterSelector2& GetCharacterWidget() const { return m_characterWidget2; }
  const MainWindowClothSelector& GetClothWidget() const { return m_clothWidget; }
  const MainWindowSelectionInfo& GetCharacterInfo() const { return m_characterInfo; }
  const MainWindowPlacementWidget& GetPlacementWidget() const { return m_placementWidget; }
  const MainWindowGeneralSelector& GetGeneralSelectorWidget() const { return m_generalSelectorWidget; }
  const MainWindowMenu& GetMenu() const { return m_menu; }

 protected:
  void ResizeEvent() override;
  void CloseEvent() override;

 private:
  void AddLogo();

  int base_width = 950;
  int base_height = 670;
  MainWindowCharacterSelector2 m_characterWidget2;
  MainWindowClothSelector m_clothWidget;
  MainWindowSelectionInfo m_characterInfo;
  MainWindowPlacementWidget m_placementWidget;
  MainWindowGeneralSelector m_generalSelectorWidget;
  MainWindowMenu m_menu;
};

}  // namespace ZORVEL
