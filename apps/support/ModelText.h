#pragma once

#include <string>
#include <vector>

#include "model/CharacterData.h"
#include "model/RepositoryFormat.h"

namespace apps {

/// The field as UTF-8; empty for a null record and a missing field.
std::string field(const ZORVEL::DataContainer* record, const wchar_t* name);

std::vector<ZORVEL::DataContainer*> childrenOf(const ZORVEL::DataContainer& record);
std::vector<ZORVEL::DataContainer*> elementsOf(const ZORVEL::CharacterData& character, ZORVEL::CONTAINER container);
/// Empty for a cloth without that group.
std::vector<ZORVEL::DataContainer*> clothChildren(const ZORVEL::DataContainer& cloth, ZORVEL::CLOTH_CHILD group);
std::vector<ZORVEL::CharacterData*> characters();
std::vector<ZORVEL::DataContainer*> globalAssets();

template <class Record>
std::vector<std::string> idsOf(const std::vector<Record*>& records) {
  std::vector<std::string> ids;
  for (const Record* record : records) ids.push_back(field(record, ZORVEL::RepositoryFormat::FIELD_ID));
  return ids;
}

/// For a person: id and name, as far as it has them.
std::string nameOf(const ZORVEL::DataContainer& record);

}  // namespace apps
