#include "check/rules/MatrixRules.h"

#include <map>
#include <string_view>

#include "apps/support/ModelText.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::XmlAttribute;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;

namespace {

/// The first of every id, as all lookups find it.
class IdsOf {
 public:
  IdsOf(const CharacterData& character, ZORVEL::CONTAINER container) {
    for (const DataContainer* record : apps::elementsOf(character, container)) {
      const wchar_t* id = ZORVEL::Fields::OptionalText(record, FIELD_ID);
      if (id != nullptr) records_.emplace(id, record);
    }
  }
  const DataContainer* find(const std::wstring& id) const {
    const auto found = records_.find(id);
    return found != records_.end() ? found->second : nullptr;
  }

 private:
  std::unordered_map<std::wstring, const DataContainer*> records_;
};

template <class Visit>
void forEachNamed(const XmlElement& parent, const wchar_t* name, Visit visit) {
  for (const XmlElement* child = parent.firstChild; child != nullptr; child = child->nextSibling) {
    if (std::wcscmp(child->name, name) == 0) visit(*child);
  }
}

}  // namespace

void MatrixRules::run() {
  for (const CharacterData* character : apps::characters()) {
    if (const XmlElement* element = survey_.elementOf(character)) lookAt(*character, *element);
  }
}

void MatrixRules::lookAt(const CharacterData& character, const XmlElement& element) {
  const IdsOf poses(character, ZORVEL::POSES);
  const IdsOf assets(character, ZORVEL::ASSETS);
  // There may be a row for each asset in each pose.
  std::map<std::pair<std::string_view, std::string_view>, int> rows;
  const auto lookAtRow = [&](const XmlElement& row) {
    const XmlAttribute* pose = row.FindAttribute(FIELD_POSE_ID);
    const XmlAttribute* assetOfRow = row.FindAttribute(FIELD_MATRIX_ASSET_ID);
    const std::wstring poseId = pose != nullptr ? pose->GetText() : L"";
    const std::wstring assetId = assetOfRow != nullptr ? assetOfRow->GetText() : L"";
    if (pose == nullptr || assetOfRow == nullptr) {
      survey_.missedPairs.emplace(&character, poseId, assetId);
      return;
    }
    Findings& findings = survey_.findings;
    const auto [first, isNew] = rows.emplace(std::make_pair(pose->text, assetOfRow->text), row.line);
    const DataContainer* asset = assets.find(assetId);
    if (!isNew) {
      findings.add(RuleId::MatrixRowDuplicate, &row, {first->second});
    } else if (poses.find(poseId) == nullptr) {
      if (survey_.isLost(character, EntryKind::Poses)) return;
      const auto known = [&] { return apps::idsOf(apps::elementsOf(character, ZORVEL::POSES)); };
      const std::wstring nearest = survey_.nearestTo(poseId, known);
      findings.add(RuleId::MatrixRowUnknownPose, &row, {poseId, hintAt(nearest)});
      if (!nearest.empty()) survey_.missedPairs.emplace(&character, nearest, assetId);
    } else if (asset == nullptr) {
      if (survey_.isLost(character, EntryKind::Assets)) return;
      const auto known = [&] { return apps::idsOf(apps::elementsOf(character, ZORVEL::ASSETS)); };
      const std::wstring nearest = survey_.nearestTo(assetId, known);
      findings.add(RuleId::MatrixRowUnknownAsset, &row, {assetId, hintAt(nearest)});
      if (!nearest.empty()) survey_.missedPairs.emplace(&character, poseId, nearest);
    } else if (CharacterData::IsSpecific(asset)) {
      findings.add(RuleId::MatrixRowUnused, &row, {assetId});
    }
  };
  forEachNamed(element, ELEMENT_ASSET_MATRIX,
               [&](const XmlElement& matrix) { forEachNamed(matrix, ELEMENT_MATRIX, lookAtRow); });
}

}  // namespace check
