#include "model/PiecePlans.h"

#include <initializer_list>
#include <utility>

#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"

namespace ZORVEL {

using namespace RepositoryFormat;

namespace {

PiecePlan Begin(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord) {
  PiecePlan plan;
  plan.element = PiecePlans::Describe(kind, record, materialRecord);
  plan.record = record;
  return plan;
}

void LeaveOut(PiecePlan& plan, OmissionReason reason, const std::wstring& subject) {
  plan.canBeBuilt = false;
  plan.omission = {plan.element, reason, subject};
}

/// False, and the plan says so, when the record lacks one of the fields.
bool HasFields(PiecePlan& plan, std::initializer_list<const wchar_t*> fields) {
  for (const wchar_t* field : fields) {
    if (Fields::OptionalText(plan.record, field) != nullptr) continue;
    LeaveOut(plan, OmissionReason::NoField, field);
    return false;
  }
  return true;
}

/// Whether an asset of the character's own only refers to a shared one, which is not there.
bool IsLostReference(const PiecePlan& plan) {
  const bool isReference = plan.element.kind == ElementKind::Asset && Data2::CheckAssetGlobal(plan.record);
  return isReference && !plan.record->CheckDatafield(FIELD_FOLDER);
}

const DataContainer* FindOwnAsset(const CharacterData& character, const std::wstring& id) {
  for (int i = 0; i < character.GetCount(ASSETS); ++i) {
    const DataContainer* asset = character.GetContainerElement(ASSETS, i);
    if (Fields::Equals(asset, FIELD_ID, id.c_str())) return asset;
  }
  return nullptr;
}

/// For an id that a pose asks for, and for which the character has nothing to build.
PiecePlan Unresolved(const CharacterData& character, const DataContainer* entry, const std::wstring& id) {
  PiecePlan plan;
  plan.element.kind = ElementKind::MandatoryAsset;
  plan.element.id = id;
  plan.record = entry;
  const DataContainer* reference = FindOwnAsset(character, id);
  if (reference == nullptr) {
    LeaveOut(plan, OmissionReason::UnknownId, id);
  } else {
    LeaveOut(plan, OmissionReason::NoSharedRecord, Fields::TextOrEmpty(reference, FIELD_GLOBAL_ID));
  }
  return plan;
}

}  // namespace

PiecePlans::PiecePlans(const CharacterData& character, std::wstring root)
    : m_character(character), m_root(std::move(root)), m_folder(Fields::TextOrEmpty(&character, FIELD_FOLDER)) {}

BuildElement PiecePlans::Describe(ElementKind kind, const DataContainer* record, const DataContainer* materialRecord) {
  BuildElement element;
  element.kind = kind;
  element.id = Fields::TextOrEmpty(record, FIELD_ID);
  element.name = Fields::TextOrEmpty(record, FIELD_NAME);
  element.materialId = Fields::TextOrEmpty(materialRecord, FIELD_ID);
  return element;
}

PiecePlan PiecePlans::Body(const DataContainer& pose, const DataContainer* skin) const {
  PiecePlan plan = Begin(ElementKind::Body, &pose, skin);
  if (!HasFields(plan, {FIELD_FOLDER, FIELD_NAME})) return plan;
  plan.meshFile = RepositoryPaths::BodyMesh(RepositoryPaths::Element(m_folder, &pose));
  AskForMaterial(plan, skin, RepositoryPaths::SkinLibrary(m_folder));
  return plan;
}

PiecePlan PiecePlans::Clothing(const DataContainer& cloth, const DataContainer* style,
                               const DataContainer& pose) const {
  PiecePlan plan = Begin(ElementKind::Clothing, &cloth, style);
  if (!HasFields(plan, {FIELD_FOLDER, FIELD_NAME})) return plan;
  const std::wstring folder = RepositoryPaths::Element(m_folder, &cloth);
  plan.meshFile = RepositoryPaths::ClothMesh(folder, plan.element.id, Fields::TextOrEmpty(&pose, FIELD_ID));
  AskForMaterial(plan, style, RepositoryPaths::Library(folder));
  return plan;
}

PiecePlan PiecePlans::Asset(ElementKind kind, const DataContainer& asset, const DataContainer* material,
                            const std::wstring& poseId) const {
  PiecePlan plan = Begin(kind, &asset, material);
  if (IsLostReference(plan)) {
    LeaveOut(plan, OmissionReason::NoSharedRecord, Fields::TextOrEmpty(&asset, FIELD_GLOBAL_ID));
    return plan;
  }
  if (!HasFields(plan, {FIELD_FOLDER, FIELD_ID, FIELD_NAME})) return plan;
  const DataContainer* materialRecord = material != nullptr ? material : &asset;
  if (Data2::CheckAssetGlobal(&asset)) {
    PlanShared(plan, materialRecord, poseId);
  } else {
    PlanOwn(plan, materialRecord, poseId);
  }
  return plan;
}

PiecePlan PiecePlans::Mandatory(const DataContainer* entry, const std::wstring& poseId) const {
  PiecePlan plan = Begin(ElementKind::MandatoryAsset, entry, nullptr);
  if (!HasFields(plan, {FIELD_ID})) return plan;
  const DataContainer* asset = m_character.ResolveAsset(entry);
  if (asset == nullptr) return Unresolved(m_character, entry, plan.element.id);
  return Asset(ElementKind::MandatoryAsset, *asset, nullptr, poseId);
}

void PiecePlans::PlanShared(PiecePlan& plan, const DataContainer* materialRecord, const std::wstring& poseId) const {
  const std::wstring folder = RepositoryPaths::GlobalAsset(m_root, plan.record);
  plan.meshFile = RepositoryPaths::AssetMesh(folder);
  const DataContainer* own = m_character.FindLocalAssetForGlobal(plan.record);
  Place(plan, Fields::OptionalText(own, FIELD_ID), poseId);
  if (own == nullptr) plan.placing = PlacingState::NotListed;
  if (plan.row == nullptr) return;
  plan.materialRecord = materialRecord;
  plan.libraries = {RepositoryPaths::Library(folder), RepositoryPaths::GlobalLibrary(m_root)};
}

void PiecePlans::PlanOwn(PiecePlan& plan, const DataContainer* materialRecord, const std::wstring& poseId) const {
  const std::wstring folder = RepositoryPaths::Element(m_folder, plan.record);
  const bool isForThisPose = CharacterData::IsSpecific(plan.record);
  plan.meshFile = isForThisPose ? RepositoryPaths::AssetMeshInPose(folder, poseId) : RepositoryPaths::AssetMesh(folder);
  if (!isForThisPose) Place(plan, plan.element.id.c_str(), poseId);
  if (plan.placing != PlacingState::NoRow) AskForMaterial(plan, materialRecord, RepositoryPaths::Library(folder));
}

void PiecePlans::Place(PiecePlan& plan, const wchar_t* assetId, const std::wstring& poseId) const {
  plan.row = m_character.FindAssetMatrixElement(poseId.c_str(), assetId);
  plan.placing = plan.row != nullptr ? PlacingState::ByRow : PlacingState::NoRow;
}

void PiecePlans::AskForMaterial(PiecePlan& plan, const DataContainer* record, const std::wstring& firstLibrary) const {
  if (record == nullptr) return;
  plan.materialRecord = record;
  plan.libraries = {firstLibrary, RepositoryPaths::CharacterLibrary(m_folder), RepositoryPaths::PropsLibrary(m_folder)};
}

}  // namespace ZORVEL
