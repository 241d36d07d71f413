#include "check/explain/Explainer.h"

#include <set>
#include <utility>

#include "apps/support/ModelText.h"
#include "check/explain/AssetSteps.h"
#include "check/explain/WearerSteps.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/RepositoryValidation.h"

namespace check {

using ZORVEL::DataContainer;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;

namespace {

std::string kindText(std::optional<EntryKind> kind) {
  if (!kind) return "element";
  return *kind == EntryKind::SharedMaterial ? "material of the shared asset" : wordFor(*kind);
}

bool isBelow(const std::string& element, const std::string& path) {
  return element.size() > path.size() && element.rfind(path + '/', 0) == 0;
}

/// "character[anna]" of what is in it; empty for what characters share.
std::string wearerOf(const std::string& element) {
  return element.rfind("character", 0) == 0 ? element.substr(0, element.find('/')) : "";
}

/// Where it was looked for, by the kinds that have a folder.
std::wstring folderOf(const Element& element, const std::wstring& root) {
  const std::wstring character = ZORVEL::Fields::TextOrEmpty(element.character, FIELD_FOLDER);
  if (element.kind == EntryKind::Character) return character;
  return ZORVEL::RepositoryPaths::Asset(root, character, element.record);
}

}  // namespace

Explainer::Explainer(CheckRun& run) : run_(run), survey_(run.survey()), findings_(run.result().findings) {}

Explanation Explainer::explain(const Element& element) {
  Explanation explanation;
  explanation.kind = kindText(element.kind);
  explanation.id = host::printable(host::toUtf8(element.source->GetText(FIELD_ID)));
  explanation.element = host::printable(survey_.findings.description().pathOf(*element.source));
  explanation.line = element.source->line;
  explanation.column = element.source->column;
  Outcome outcome = {false, "not read, so nobody ever sees it"};
  if (addReading(element)) {
    addId(element);
    addFolder(element);
    outcome = addRest(element);
  }
  explanation.steps = steps_.take();
  explanation.works = outcome.works;
  explanation.verdict = host::printable(outcome.verdict);
  explanation.findings = concerning(element);
  return explanation;
}

bool Explainer::addReading(const Element& element) {
  if (element.record == nullptr) {
    steps_.bad("read", whyNotRead(*element.source));
    return false;
  }
  const bool isInCharacter = element.character != nullptr && element.kind != EntryKind::Character;
  const std::string owner = isInCharacter ? " of " + apps::field(element.character, FIELD_ID) : "";
  const std::string name = apps::field(element.record, FIELD_NAME);
  steps_.good("read", "as " + kindText(element.kind) + owner + (name.empty() ? "" : ", \"" + name + '"'));
  return true;
}

/// What was refused is it, or the nearest around it.
std::string Explainer::whyNotRead(const XmlElement& element) const {
  const Description& description = survey_.findings.description();
  for (const XmlElement* one = &element; one != nullptr; one = description.parentOf(*one)) {
    const Finding* finding = findings_.findAny(
        one, {RuleId::CharacterWithoutAttributes, RuleId::CharacterFolderUnnamed, RuleId::CharacterPreviewsMissing,
              RuleId::CharacterSkinFolderMissing, RuleId::UnknownElement, RuleId::MisplacedElement,
              RuleId::ElementLetterCase, RuleId::ClothingPreviewMissing});
    if (finding == nullptr) continue;
    return one == &element ? finding->message : finding->element + ": " + finding->message;
  }
  return "nothing of it is in the plug-in";
}

void Explainer::addId(const Element& element) {
  const Finding* finding = findings_.findAny(
      element.source, {RuleId::IdMissing, RuleId::ChoiceIdMissing, RuleId::IdEmpty, RuleId::IdDuplicate,
                       RuleId::AssetIdDuplicate, RuleId::CategoryIdDuplicate, RuleId::GlobalIdDuplicate});
  if (finding != nullptr) steps_.bad("id", finding->message);
}

void Explainer::addFolder(const Element& element) {
  switch (*element.kind) {
    case EntryKind::Character:
    case EntryKind::Clothing:
    case EntryKind::Pose:
    case EntryKind::Asset:
    case EntryKind::SharedAsset:
      break;
    default:
      return;
  }
  const ZORVEL::Refusal refusal = ZORVEL::RepositoryValidation::WhyUnmarked(*element.record, element.character);
  const bool isWorking = refusal.why == ZORVEL::WhyNot::Nothing;
  if (isWorking && element.record->CheckDatafield(FIELD_GLOBAL_ID)) return;
  steps_.unless(isWorking ? "" : survey_.reasonOf(refusal), "folder", survey_.shown(folderOf(element, survey_.root)));
}

Outcome Explainer::addRest(const Element& element) {
  const DataContainer& record = *element.record;
  AssetSteps assets(survey_, run_.libraries(), steps_);
  if (*element.kind == EntryKind::SharedAsset) return assets.addShared(record, nullptr);
  if (*element.kind == EntryKind::SharedMaterial) return assets.addShared(*element.owner, &record);
  if (*element.kind == EntryKind::Category) return assets.addCategory(*element.character, record);
  if (*element.kind == EntryKind::Asset) return assets.addAsset(*element.character, record, nullptr);
  if (*element.kind == EntryKind::AssetMaterial) return assets.addAsset(*element.character, *element.owner, &record);
  WearerSteps wearer(survey_, run_.libraries(), run_.result().findings, *element.character, steps_);
  if (*element.kind == EntryKind::Clothing) return wearer.addClothing(record);
  if (*element.kind == EntryKind::Style) return wearer.addStyle(*element.owner, record);
  if (*element.kind == EntryKind::Pose) return wearer.addPose(record);
  if (*element.kind == EntryKind::Skin) return wearer.addSkin(record);
  return wearer.addCharacter();
}

/// Those about it, in it (but not all of a character), right around it, and those in the same character that name it.
std::vector<Finding> Explainer::concerning(const Element& element) const {
  const std::string path = host::printable(survey_.findings.description().pathOf(*element.source));
  const std::string named = '"' + host::printable(host::toUtf8(element.source->GetText(FIELD_ID))) + '"';
  const std::string wearer = wearerOf(path);
  std::set<const XmlElement*> near = {element.source, aroundOf(element), sharedOf(element)};
  // Whatever is around what was not read may be what was refused.
  const XmlElement* around = element.record == nullptr ? element.source : nullptr;
  for (; around != nullptr; around = survey_.findings.description().parentOf(*around)) near.insert(around);
  std::set<std::pair<int, int>> places;
  for (const XmlElement* one : near) {
    if (one != nullptr) places.emplace(one->line, one->column);
  }
  std::vector<Finding> result;
  for (const Finding& finding : run_.result().findings) {
    if (finding.element.empty()) continue;
    const bool isAt = places.count({finding.line, finding.column}) > 0;
    const bool isIn = path != wearer && isBelow(finding.element, path);
    const bool isInSame = path != wearer && (wearer.empty() || wearerOf(finding.element) == wearer);
    if (isAt || isIn || (isInSame && finding.message.find(named) != std::string::npos)) result.push_back(finding);
  }
  return result;
}

const XmlElement* Explainer::aroundOf(const Element& element) const {
  if (element.owner != nullptr) return survey_.elementOf(element.owner);
  return survey_.findings.description().parentOf(*element.source);
}

/// Null for what stands for no shared asset.
const XmlElement* Explainer::sharedOf(const Element& element) const {
  const bool standsIn = element.kind == EntryKind::Asset && ZORVEL::Data2::CheckAssetGlobal(element.record);
  return standsIn ? survey_.elementOf(ZORVEL::Data2::GetGlobalAssetForAsset(element.record)) : nullptr;
}

}  // namespace check
