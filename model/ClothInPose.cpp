#include "model/ClothInPose.h"

#include "core/FileStamps.h"
#include "model/CharacterData.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/Selection2.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

std::wstring IdOrEmpty(const wchar_t* text) { return text ? text : std::wstring(); }

Refusal RefusalFor(const std::wstring& mesh, FileStamps& files) {
  return files.Exists(mesh) ? Refusal() : Refusal{WhyNot::MeshMissing, mesh};
}

}  // namespace

ClothInPose::ClothInPose(const CharacterData& character, const DataContainer* pose, FileStamps& files)
    : m_cloth(character.GetCloth(Selection2::GetCloth())), m_pose(pose) {
  const std::wstring clothId = IdOrEmpty(Selection2::GetCloth());
  if (!m_cloth) {
    m_refusal = {WhyNot::NoClothing, clothId};
  } else if (!m_pose) {
    m_refusal = {WhyNot::NoPose, IdOrEmpty(Selection2::GetPose())};
  } else {
    const std::wstring folder = RepositoryPaths::Element(Fields::TextOrEmpty(&character, FIELD_FOLDER), m_cloth);
    m_refusal = RefusalFor(RepositoryPaths::ClothMesh(folder, clothId, Fields::TextOrEmpty(m_pose, FIELD_ID)), files);
    m_url = Fields::TextOrEmpty(m_pose, FIELD_URL) + L"&gid=" + clothId;
  }
}

ClothInPose ClothInPose::Chosen(const CharacterData& character, FileStamps& files) {
  return ClothInPose(character, character.GetPose(Selection2::GetPose()), files);
}

}  // namespace ZORVEL
