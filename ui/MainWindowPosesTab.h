#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

class CharacterData;

/// The poses, of which one is always chosen.
class MainWindowPosesTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  /// Chooses the first pose in which the clothing can be worn.
  void FillPoses(const CharacterData& character);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
