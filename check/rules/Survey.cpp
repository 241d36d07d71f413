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

std::string hintAt(const std::wstring& wanted, const std::vector<std::string>& known) {
  const std::string nearest = apps::nearestId(host::toUtf8(wanted), known);
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
