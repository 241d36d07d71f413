#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

class CharacterData;

/// The skins, of which one is always chosen.
class MainWindowSkinTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  /// Chooses the first that is available; none is when the clothing cannot be worn in the chosen pose.
  void FillSkins(const CharacterData& character);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
