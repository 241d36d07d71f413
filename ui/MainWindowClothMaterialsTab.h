#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

class CharacterData;

/// The styles of the chosen clothing, of which one is always chosen.
class MainWindowClothMaterialsTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  /// Chooses the first that is available. A null clothing has none.
  void FillMaterials(const DataContainer* clothing, const CharacterData& character);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;
};

}  // namespace ZORVEL
