#include "ui/MainWindowSkinTab.h"

#include "plugin/Commands.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "ui/ClothInPose.h"
#include "ui/Log.h"
#include "ui/MainWindowGeneralElement.h"
#include "ui/Texts.h"

namespace ZORVEL {

void MainWindowSkinTab::FillSkins(const CharacterData& character) {
  const ClothInPose worn = ClothInPose::Chosen(character);
  if (!worn.IsComplete()) return;
  const std::wstring folder = Texts::Field(&character, L"folder") + L"\\skin\\";
  for (int i = 0; i < character.GetCount(SKINS); ++i) {
    const DataContainer* skin = character.GetContainerElement(SKINS, i);
    if (skin == nullptr) continue;
    ElementPtr element = MakeElement<MainWindowGeneralElement>(Data2::GetUnique(skin), Texts::Field(skin, L"name"),
                                                               folder + Texts::Field(skin, L"preview"), worn);
    if (element == nullptr) continue;
    ChooseFirst(*element, Commands::SetSelectedSkin);
    InsertByAvailability(std::move(element));
  }
}

void MainWindowSkinTab::SelectedElement(int unique) {
  LogInfo(L"selected a skin in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedSkin(static_cast<unsigned int>(unique), true);
}

void MainWindowSkinTab::UnselectElement(int /*unique*/) { SelectOnlyUnique(m_lastSelected); }

}  // namespace ZORVEL
