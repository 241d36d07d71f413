#include "scene/BuildContext.h"

#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/Selection2.h"
#include "scene/BuildReport.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

/// The elements of the selection, looked up one after the other until one is missing.
struct SelectedElements {
  const DataContainer* pose = nullptr;
  const DataContainer* cloth = nullptr;
  const DataContainer* style = nullptr;
  const DataContainer* skin = nullptr;
};

/// Whether the element is there; otherwise the report is told what is missing.
bool Require(const DataContainer* element, BuildObstacle obstacle, const wchar_t* id, BuildReport& report) {
  if (element != nullptr) return true;
  report.obstacle = obstacle;
  report.obstacleId = id != nullptr ? id : L"";
  return false;
}

bool Find(const CharacterData& character, SelectedElements& found, BuildReport& report) {
  const wchar_t* poseId = Selection2::GetPose();
  found.pose = character.GetPose(poseId);
  if (!Require(found.pose, BuildObstacle::Pose, poseId, report)) return false;
  const wchar_t* clothId = Selection2::GetCloth();
  found.cloth = character.GetCloth(clothId);
  if (!Require(found.cloth, BuildObstacle::Clothing, clothId, report)) return false;
  const wchar_t* styleId = Selection2::GetStyle();
  found.style = character.GetStyle(clothId, styleId);
  if (!Require(found.style, BuildObstacle::Style, styleId, report)) return false;
  const wchar_t* skinId = Selection2::GetSkin();
  found.skin = character.GetSkin(skinId);
  return Require(found.skin, BuildObstacle::Skin, skinId, report);
}

/// Null when there is none, or none with a folder.
CharacterData* FindCharacter(BuildReport& report) {
  const wchar_t* id = Selection2::GetCharacter();
  CharacterData* character = Data2::GetCharacter(id);
  if (!Require(character, BuildObstacle::Character, id, report)) return nullptr;
  CharacterData* withFolder = character->CheckDatafield(FIELD_FOLDER) ? character : nullptr;
  Require(withFolder, BuildObstacle::CharacterFolder, id, report);
  return withFolder;
}

}  // namespace

std::unique_ptr<BuildContext> BuildContext::Prepare(INode& parent, BuildReport& report) {
  const wchar_t* root = Settings::GetPath();
  if (root == nullptr) report.obstacle = BuildObstacle::RepositoryPath;
  CharacterData* character = root != nullptr ? FindCharacter(report) : nullptr;
  if (character == nullptr) return nullptr;
  const std::wstring textures = RepositoryPaths::Textures(Fields::TextOrEmpty(character, FIELD_FOLDER));
  character->SetData(FIELD_TEXTURE_FOLDER, textures.c_str());
  SelectedElements elements;
  if (!Find(*character, elements, report)) return nullptr;
  const std::wstring maps = RepositoryPaths::Maps(root);
  character->SetData(FIELD_GLOBAL_MAPS, maps.c_str());
  report.poseId = Selection2::GetPose();
  return std::make_unique<BuildContext>(BuildContext{parent, *character, *elements.pose, *elements.cloth,
                                                     *elements.style, *elements.skin, report.poseId,
                                                     Selection2::GetCloth(), root, maps});
}

}  // namespace ZORVEL
