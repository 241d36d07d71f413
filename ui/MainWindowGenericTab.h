#pragma once

#include "ui/MainWindowGeneralPage.h"

namespace ZORVEL {

class CharacterData;

/// The assets of one category, in the order of the repository.
class MainWindowGenericTab : public MainWindowGeneralPage {
 public:
  using MainWindowGeneralPage::MainWindowGeneralPage;

  void SetCategoryInfo(bool multiple, bool required);
  /// Chooses what goes with the clothing, and the first of a category that is required.
  void FillAssets(const std::vector<DataContainer*>& assets, const CharacterData& character);
  void SelectedElement(int unique) override;
  void UnselectElement(int unique) override;

 private:
  void HandleAsset(const DataContainer* asset, const CharacterData& character, const ClothInPose& worn);
  void HandleAssetStyles(const DataContainer* asset, const CharacterData& character, const ClothInPose& worn);
  void AddAsset(const DataContainer* asset, const DataContainer* style, const std::wstring& text,
                const std::wstring& picture, const CharacterData& character, const ClothInPose& worn);
  void Choose(int unique);

  bool m_required = false;
  bool m_multiple = false;
  int m_elementCount = 0;
};

}  // namespace ZORVEL
