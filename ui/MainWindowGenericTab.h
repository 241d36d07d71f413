#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

/// The assets of one category, in the order of the repository.
class MainWindowGenericTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  void FillAssets(PageOffer page);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
