#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

/// The skins, of which one is always chosen.
class MainWindowSkinTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  void FillSkins(PageOffer page);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
