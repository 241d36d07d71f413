#pragma once

#include <memory>
#include <vector>

#include "ui/MainWindowClothMaterialsTab.h"
#include "ui/MainWindowGenericTab.h"
#include "ui/MainWindowPosesTab.h"
#include "ui/MainWindowSkinTab.h"
#include "ui/TabControl.h"

namespace ZORVEL {

class CharacterData;

/// The tab control with the pages of what can be chosen for the chosen clothing: poses first, then skins, materials of
/// the clothing, and a page for each asset category. Filling a page makes the choices that it begins with.
class MainWindowGeneralSelector {
 public:
  void CreateWidget(MaxForm& form);
  /// Makes the control anew; its pages come with the next UpdateWidget.
  void Rebuild(MaxForm& form);

  /// Widths and heights are those of the form.
  void UpdateWidget(int width, int height);
  /// Makes the pages anew, except that of the poses.
  void RebuildExeptPoses(int width);
  void UpdateWidth(int width);

  void UpdateSelection();
  void UpdatePoseSelection();
  void UpdateSkinSelection();

  TabControl* GetControl() const { return m_control; }
  const std::vector<std::unique_ptr<MainWindowGeneralPage>>& GetPages() const { return m_pages; }

 private:
  void BuildPages(const CharacterData& character, int width);
  void AddPage(PageOffer page, int width);
  void UpdateWidthExeptPoses(int width);
  void UpdateStyleSelection();
  void SelectTabControl(int index);
  void ShowCurrentPage();
  /// Drops the pages from the index on.
  void RemovePages(std::size_t first);
  template <class Page>
  Page* MakePage(const PageOffer& offer, int width);

  TabControl* m_control = nullptr;
  std::vector<std::unique_ptr<MainWindowGeneralPage>> m_pages;
  MainWindowPosesTab* posesTab = nullptr;
  MainWindowSkinTab* skinTab = nullptr;
  MainWindowClothMaterialsTab* clothMaterialTab = nullptr;
  MaxForm* m_parent = nullptr;
  FileStamps m_files;
};

}  // namespace ZORVEL
