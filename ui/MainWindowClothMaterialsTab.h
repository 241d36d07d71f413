#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

/// The styles of the chosen clothing, of which one is always chosen.
class MainWindowClothMaterialsTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  /// A style is hidden only for want of a clothing or a pose, and that is logged.
  void FillMaterials(PageOffer page);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
