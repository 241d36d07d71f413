#include "apps/support/ModelText.h"

#include "host/files/Paths.h"
#include "model/Data2.h"

namespace apps {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;

std::string field(const DataContainer* record, const wchar_t* name) {
  if (record == nullptr || !record->CheckDatafield(name)) return "";
  bool found = false;
  return host::toUtf8(record->GetData(name, found));
}

std::vector<DataContainer*> childrenOf(const DataContainer& record) {
  std::vector<DataContainer*> result;
  for (int i = 0; i < record.GetChildCount(); ++i) result.push_back(record.GetChild(i));
  return result;
}

std::vector<DataContainer*> elementsOf(const CharacterData& character, ZORVEL::CONTAINER container) {
  std::vector<DataContainer*> result;
  for (int i = 0; i < character.GetCount(container); ++i) result.push_back(character.GetContainerElement(container, i));
  return result;
}

std::vector<DataContainer*> clothChildren(const DataContainer& cloth, ZORVEL::CLOTH_CHILD group) {
  if (cloth.GetChildCount() <= group) return {};
  return childrenOf(*cloth.GetChild(group));
}

std::vector<CharacterData*> characters() {
  std::vector<CharacterData*> result;
  for (int i = 0; i < Data2::GetCharacterCount(); ++i) result.push_back(Data2::GetCharacter(i));
  return result;
}

std::vector<DataContainer*> globalAssets() {
  std::vector<DataContainer*> result;
  for (int i = 0; i < Data2::GetGlobalAssetCount(); ++i) result.push_back(Data2::GetGlobalAsset(i));
  return result;
}

std::string nameOf(const DataContainer& record) {
  const std::string id = field(&record, ZORVEL::RepositoryFormat::FIELD_ID);
  const std::string name = field(&record, ZORVEL::RepositoryFormat::FIELD_NAME);
  if (id.empty() || name.empty()) return "\"" + id + name + "\"";
  return "\"" + id + "\" (" + name + ")";
}

}  // namespace apps
