#include "check/rules/Survey.h"

#include "apps/support/NearestIds.h"
#include "check/Vocabulary.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace check {

std::string Survey::pathOf(const ZORVEL::DataContainer* record) const {
  const ZORVEL::XmlElement* element = elementOf(record);
  return element != nullptr ? host::printable(findings.description().pathOf(*element)) : "";
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

std::wstring idOf(const ZORVEL::DataContainer* record) {
  return ZORVEL::Fields::TextOrEmpty(record, ZORVEL::RepositoryFormat::FIELD_ID);
}

std::wstring Survey::nearestTo(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known) {
  if (hintWork <= 0) return L"";
  const std::vector<std::string> ids = known();
  const std::string name = host::toUtf8(wanted);
  std::size_t letters = 0;
  for (const std::string& id : ids) letters += id.size() + 1;
  hintWork -= static_cast<double>(letters) * static_cast<double>(name.size() + 1);
  return hintWork > 0 ? host::toWide(apps::nearestId(name, ids)) : L"";
}

std::string Survey::hintAt(const std::wstring& wanted, const std::function<std::vector<std::string>()>& known) {
  return check::hintAt(nearestTo(wanted, known));
}

std::string hintAt(const std::wstring& nearest) {
  return nearest.empty() ? "" : "; did you mean \"" + host::toUtf8(nearest) + "\"?";
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
