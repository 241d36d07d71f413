#include "check/rules/WearTables.h"

#include <algorithm>
#include <initializer_list>

#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "host/files/PrintableText.h"
#include "model/Fields.h"
#include "model/MeshFiles.h"
#include "model/PiecePlans.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::DataContainer;
using ZORVEL::WhyNot;
using ZORVEL::XmlElement;
using namespace ZORVEL::RepositoryFormat;

namespace {

using Kind = ZORVEL::ParseNoteKind;

/// Rules that say why nothing of an element is built although it may be shown.
constexpr std::initializer_list<RuleId> CHARACTER_USELESS = {RuleId::IdMissing, RuleId::IdEmpty, RuleId::IdDuplicate,
                                                             RuleId::CharacterIncomplete, RuleId::NoSkinShown};
constexpr std::initializer_list<RuleId> CLOTHING_USELESS = {RuleId::IdMissing, RuleId::IdEmpty, RuleId::IdDuplicate,
                                                            RuleId::ClothingWithoutStyle,
                                                            RuleId::ClothingFolderUnnamed};
constexpr std::initializer_list<RuleId> POSE_USELESS = {RuleId::ChoiceIdMissing, RuleId::IdEmpty, RuleId::IdDuplicate};
/// And of a skin or a style; the others of its list may do.
constexpr std::initializer_list<RuleId> CHOICE_USELESS = {RuleId::ChoiceIdMissing, RuleId::IdEmpty,
                                                          RuleId::SkinPictureMissing, RuleId::PreviewUnnamed};
constexpr std::initializer_list<RuleId> POSE_FOLDER = {RuleId::PoseFolderMissing, RuleId::FolderUnnamed};

bool isLeftOut(Kind kind) {
  return kind == Kind::CharacterWithoutAttributes || kind == Kind::CharacterWithoutFolder ||
         kind == Kind::CharacterWithoutPreviews || kind == Kind::CharacterWithoutSkin;
}

/// Whether what the finding is about is a file or a folder.
bool namesFile(RuleId rule) {
  switch (rule) {
    case RuleId::ClothingPreviewMissing:
    case RuleId::ClothingFolderMissing:
    case RuleId::PoseFolderMissing:
    case RuleId::BodyMeshMissing:
    case RuleId::ClothingMeshMissing:
    case RuleId::MeshUnreadable:
    case RuleId::FileUnreadable:
      return true;
    default:
      return false;
  }
}

/// Builds when there is no finding.
WearCell cellFrom(WearState state, const Finding* finding) {
  if (finding == nullptr) return {};
  return {state, finding->message, namesFile(finding->rule) ? finding->subject : "", ruleOf(finding->rule).code};
}

std::string idText(const XmlElement& element) {
  const ZORVEL::XmlAttribute* id = element.FindAttribute(FIELD_ID);
  return id != nullptr ? host::printable(id->text) : "";
}

}  // namespace

const char* nameOf(WearState state) {
  const char* const names[] = {"builds", "incomplete", "grey", "hidden", "unchoosable"};
  return names[static_cast<int>(state)];
}

WearTables::WearTables(const Survey& survey, const std::vector<Finding>& findings)
    : survey_(survey), findings_(findings) {
  for (const PoseOffer& offer : survey.poseOffers) offers_[{offer.clothing, offer.pose}] = &offer;
}

std::vector<WearTable> WearTables::make() const {
  std::vector<WearTable> tables;
  for (const CharacterData* character : apps::characters()) tables.push_back(tableOf(*character));
  for (const ZORVEL::ParseNote& note : survey_.findings.description().notes()) {
    if (!isLeftOut(note.kind)) continue;
    const auto& here = findings_.at(note.source);
    tables.push_back(leftOut(*note.source, here.empty() ? "" : here.front()->message));
  }
  return tables;
}

WearTable WearTables::leftOut(const XmlElement& character, const std::string& why) const {
  WearTable table;
  table.character = idText(character);
  table.element = host::printable(survey_.findings.description().pathOf(character));
  table.whyNone = why;
  return table;
}

WearTable WearTables::tableOf(const CharacterData& character) const {
  WearTable table;
  table.character = host::printable(apps::field(&character, FIELD_ID));
  table.element = survey_.pathOf(&character);
  for (const DataContainer* pose : apps::elementsOf(character, ZORVEL::POSES)) {
    table.poses.push_back(host::printable(apps::field(pose, FIELD_ID)));
  }
  for (const DataContainer* clothing : apps::elementsOf(character, ZORVEL::CLOTH)) {
    table.rows.push_back(rowOf(character, *clothing));
  }
  addDropped(character, table);
  return table;
}

WearRow WearTables::rowOf(const CharacterData& character, const DataContainer& clothing) const {
  WearRow row;
  row.clothing = host::printable(apps::field(&clothing, FIELD_ID));
  row.element = survey_.pathOf(&clothing);
  for (const DataContainer* pose : apps::elementsOf(character, ZORVEL::POSES)) {
    row.cells.push_back(cellOf(character, clothing, *pose));
  }
  return row;
}

void WearTables::addDropped(const CharacterData& character, WearTable& table) const {
  const Description& description = survey_.findings.description();
  if (!description.hasDroppedClothes(survey_.elementOf(&character))) return;
  for (const ZORVEL::ParseNote& note : description.notes()) {
    if (note.kind != Kind::ClothingWithoutPreview) continue;
    const XmlElement* list = description.parentOf(*note.source);
    if (list == nullptr || description.parentOf(*list) != survey_.elementOf(&character)) continue;
    const Finding* finding = findings_.find(note.source, RuleId::ClothingPreviewMissing);
    const std::vector<WearCell> cells(table.poses.size(), cellFrom(WearState::Hidden, finding));
    table.rows.push_back({idText(*note.source), host::printable(description.pathOf(*note.source)), cells});
  }
}

WearCell WearTables::cellOf(const CharacterData& character, const DataContainer& clothing,
                            const DataContainer& pose) const {
  WearCell cell = whyUnchoosable(character, clothing, pose);
  if (cell.state == WearState::Builds) cell = whyNotOffered(clothing, pose);
  if (cell.state == WearState::Builds) cell = whyIncomplete(character, clothing, pose);
  return cell;
}

WearCell WearTables::whyUnchoosable(const CharacterData& character, const DataContainer& clothing,
                                    const DataContainer& pose) const {
  const Finding* finding = findings_.findAny(survey_.elementOf(&character), CHARACTER_USELESS);
  if (finding == nullptr) finding = whyNone(apps::elementsOf(character, ZORVEL::SKINS));
  if (finding == nullptr) finding = findings_.findAny(survey_.elementOf(&clothing), CLOTHING_USELESS);
  if (finding == nullptr) finding = whyNone(apps::clothChildren(clothing, ZORVEL::MATERIAL));
  if (finding == nullptr) finding = findings_.findAny(survey_.elementOf(&pose), POSE_USELESS);
  return cellFrom(WearState::Unchoosable, finding);
}

const Finding* WearTables::whyNone(const std::vector<DataContainer*>& choices) const {
  const Finding* first = nullptr;
  for (const DataContainer* choice : choices) {
    const Finding* finding = findings_.findAny(survey_.elementOf(choice), CHOICE_USELESS);
    if (finding == nullptr) return nullptr;
    if (first == nullptr) first = finding;
  }
  return first;
}

WearCell WearTables::whyNotOffered(const DataContainer& clothing, const DataContainer& pose) const {
  const auto found = offers_.find({&clothing, &pose});
  if (found == offers_.end() || found->second->refusal.why == WhyNot::Nothing) return {};
  const PoseOffer& offer = *found->second;
  const WearState state = offer.isShown ? WearState::Grey : WearState::Hidden;
  const Finding* finding = findings_.find(survey_.elementOf(&clothing), RuleId::ClothingFolderMissing);
  if (finding == nullptr) finding = findings_.findAny(survey_.elementOf(&pose), POSE_FOLDER);
  return finding != nullptr ? cellFrom(state, finding) : refused(offer);
}

WearCell WearTables::refused(const PoseOffer& offer) const {
  const XmlElement* clothing = survey_.elementOf(offer.clothing);
  const XmlElement* pose = survey_.elementOf(offer.pose);
  const std::string file = survey_.shown(offer.refusal.concerned);
  const Finding* finding = findings_.find(clothing, RuleId::ClothingMeshMissing, file);
  if (finding == nullptr) finding = findings_.find(pose, RuleId::PosePictureMissing, file);
  if (finding == nullptr) finding = findings_.find(clothing, RuleId::ClothingNeverWorn);
  if (finding == nullptr) finding = findings_.find(pose, RuleId::PoseNeverWorn);
  WearCell cell = {offer.isShown ? WearState::Grey : WearState::Hidden,
                   host::printable(survey_.reasonOf(offer.refusal)), host::printable(file), ""};
  cell.code = finding != nullptr ? ruleOf(finding->rule).code : codeAt(clothing);
  if (cell.code.empty()) cell.code = codeAt(pose);
  return cell;
}

WearCell WearTables::whyIncomplete(const CharacterData& character, const DataContainer& clothing,
                                   const DataContainer& pose) const {
  const ZORVEL::PiecePlans plans(character, survey_.root);
  const WearCell cell = whyNotBuilt(plans.Body(pose, nullptr), pose, RuleId::BodyMeshMissing);
  if (cell.state != WearState::Builds) return cell;
  return whyNotBuilt(plans.Clothing(clothing, nullptr, pose), clothing, RuleId::ClothingMeshMissing);
}

WearCell WearTables::whyNotBuilt(const ZORVEL::PiecePlan& plan, const DataContainer& record, RuleId meshless) const {
  const XmlElement* element = survey_.elementOf(&record);
  const std::string file = survey_.shown(plan.meshFile);
  const Finding* finding = findings_.findAny(element, {RuleId::PoseWithoutName, RuleId::ClothingWithoutName});
  if (finding == nullptr) finding = findings_.find(element, meshless, file);
  for (const RuleId rule : {RuleId::MeshUnreadable, RuleId::FileUnreadable}) {
    if (finding == nullptr) finding = findings_.find(element, rule, file);
  }
  const bool isBuilt = plan.canBeBuilt && ZORVEL::MeshFiles::Look(plan.meshFile) == ZORVEL::MeshState::Found;
  if (finding != nullptr || isBuilt) return cellFrom(WearState::Incomplete, finding);
  // What is told of the element explains it.
  const std::string why =
      plan.canBeBuilt ? "there is no mesh " + file : "it has no " + host::toUtf8(plan.omission.subject);
  return {WearState::Incomplete, host::printable(why), plan.canBeBuilt ? host::printable(file) : "", codeAt(element)};
}

std::string WearTables::codeAt(const XmlElement* element) const {
  for (const Finding* finding : findings_.at(element)) {
    if (finding->severity != Severity::Hint) return ruleOf(finding->rule).code;
  }
  return "";
}

}  // namespace check
