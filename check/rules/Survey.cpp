#include "check/rules/Survey.h"

#include "apps/support/NearestIds.h"
#include "check/PrintableText.h"
#include "check/Vocabulary.h"
#include "host/files/Paths.h"

namespace check {

std::string Survey::pathOf(const ZORVEL::DataContainer* record) const {
  const ZORVEL::XmlElement* element = elementOf(record);
  return element != nullptr ? printable(findings.description().pathOf(*element)) : "";
}

std::string Survey::reasonOf(const ZORVEL::Refusal& refusal) const {
  using ZORVEL::WhyNot;
  const std::string file = shown(refusal.concerned);
  if (refusal.why == WhyNot::PictureMissing) return "there is no picture " + file;
  if (refusal.why == WhyNot::MeshMissing) return "there is no mesh " + file;
  if (refusal.why == WhyNot::FolderMissing) return "there is no folder " + file;
  std::string text = host::toUtf8(refusal.GetText());
  if (!text.empty() && text.back() == '.') text.pop_back();
  return text;
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
