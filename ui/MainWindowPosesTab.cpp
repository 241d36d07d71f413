#include "ui/MainWindowPosesTab.h"

#include "plugin/Commands.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "ui/ClothInPose.h"
#include "ui/Log.h"
#include "ui/MainWindowPosesElement.h"
#include "ui/Texts.h"

namespace ZORVEL {

void MainWindowPosesTab::FillPoses(const CharacterData& character) {
  const std::wstring previews = Texts::Field(&character, L"folder") + L"\\previews\\";
  for (int i = 0; i < character.GetCount(POSES); ++i) {
    const DataContainer* pose = character.GetContainerElement(POSES, i);
    if (pose == nullptr || !pose->GetFastFlag(FLAG_VALID)) continue;
    const ClothInPose worn(character, pose);
    if (!worn.IsComplete()) continue;
    const std::wstring picture = previews + worn.GetClothId() + L"_" + Texts::Field(pose, L"id") + L".png";
    ElementPtr element =
        MakeElement<MainWindowPosesElement>(Data2::GetUnique(pose), Texts::Field(pose, L"name"), picture, worn);
    if (element == nullptr) continue;
    ChooseFirst(*element, Commands::SetSelectedPose);
    InsertByAvailability(std::move(element));
  }
}

void MainWindowPosesTab::SelectedElement(int unique) {
  LogInfo(L"selected a pose in the GUI");
  m_lastSelected = unique;
  Commands::SetSelectedPose(static_cast<unsigned int>(unique), true);
}

void MainWindowPosesTab::UnselectElement(int unique) { SelectOnlyUnique(unique); }

}  // namespace ZORVEL
