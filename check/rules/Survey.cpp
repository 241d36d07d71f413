#include "check/rules/Survey.h"

#include "apps/support/NearestIds.h"
#include "check/Vocabulary.h"
#include "host/files/Paths.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace check {

std::wstring idOf(const ZORVEL::DataContainer* record) {
  return ZORVEL::Fields::TextOrEmpty(record, ZORVEL::RepositoryFormat::FIELD_ID);
}

std::string Survey::hintAt(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known) {
  if (hintWork <= 0) return "";
  const std::vector<std::string> ids = known();
  const std::string name = host::toUtf8(wanted);
  std::size_t letters = 0;
  for (const std::string& id : ids) letters += id.size() + 1;
  hintWork -= static_cast<double>(letters) * static_cast<double>(name.size() + 1);
  const std::string nearest = hintWork > 0 ? apps::nearestId(name, ids) : "";
  return nearest.empty() ? "" : "; did you mean \"" + nearest + "\"?";
}

const char* wordFor(EntryKind kind) {
  switch (kind) {
    case EntryKind::SharedAsset:
      return "shared asset";
    case EntryKind::SharedMaterial:
    case EntryKind::AssetMaterial:
      return "material of the asset";
    case EntryKind::Character:
      return "character";
    case EntryKind::Skin:
      return "skin";
    case EntryKind::Clothing:
      return "clothing";
    case EntryKind::Style:
      return "style";
    case EntryKind::Pose:
      return "pose";
    case EntryKind::Category:
      return "category";
    case EntryKind::Asset:
      return "asset";
    default:
      return "element";
  }
}

}  // namespace check
