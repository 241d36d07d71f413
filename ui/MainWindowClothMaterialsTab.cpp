#include "ui/MainWindowClothMaterialsTab.h"

#include "plugin/Commands.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "ui/ClothInPose.h"
#include "ui/Log.h"
#include "ui/MainWindowPosesElement.h"
#include "ui/Texts.h"

namespace ZORVEL {

void MainWindowClothMaterialsTab::FillMaterials(const DataContainer* clothing, const CharacterData& character) {
  const DataContainer* materials = clothing != nullptr ? clothing->GetChild(MATERIAL) : nullptr;
  if (materials == nullptr) return;
  const ClothInPose worn = ClothInPose::Chosen(character);
  const std::wstring folder = Texts::Field(&character, L"folder") + L"\\" + Texts::Field(clothing, L"folder") + L"\\";
  for (int i = 0; i < materials->GetChildCount(); ++i) {
    const DataContainer* material = materials->GetChild(i);
    if (material == nullptr) continue;
    if (!worn.IsComplete()) {
      // The text names another page; it is kept as it is.
      LogInfo(L"MainWindowSkinTab::FillMaterials clothDC not found");
      continue;
    }
    ElementPtr element = MakeElement<MainWindowPosesElement>(
        Data2::GetUnique(material), Texts::Field(material, L"name"), folder + Texts::Field(material, L"preview"), worn);
    if (element == nullptr) continue;
    ChooseFirst(*element, Commands::SetSelectedStyle);
    InsertByAvailability(std::move(element));
  }
}

void MainWindowClothMaterialsTab::SelectedElement(int unique) {
  LogInfo(L"selected a cloth material in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedStyle(static_cast<unsigned int>(unique), true);
}

void MainWindowClothMaterialsTab::UnselectElement(int /*unique*/) { SelectOnlyUnique(m_lastSelected); }

}  // namespace ZORVEL
