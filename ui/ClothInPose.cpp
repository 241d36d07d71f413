#include "ui/ClothInPose.h"

#include "model/CharacterData.h"
#include "model/Selection2.h"
#include "ui/Texts.h"

namespace ZORVEL {

ClothInPose::ClothInPose(const CharacterData& character, const DataContainer* pose)
    : m_cloth(character.GetCloth(Selection2::GetCloth())), m_pose(pose) {
  if (!IsComplete()) return;
  m_clothId = Selection2::GetCloth();
  m_meshPath = Texts::Field(&character, L"folder") + L"\\" + Texts::Field(m_cloth, L"folder") + L"\\" + m_clothId +
               L"_" + Texts::Field(m_pose, L"id") + L".vrmesh";
  m_url = Texts::Field(m_pose, L"url") + L"&gid=" + m_clothId;
}

ClothInPose ClothInPose::Chosen(const CharacterData& character) {
  return ClothInPose(character, character.GetPose(Selection2::GetPose()));
}

}  // namespace ZORVEL
