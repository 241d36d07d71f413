#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

/// The poses, of which one is always chosen.
class MainWindowPosesTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  void FillPoses(PageOffer page);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
