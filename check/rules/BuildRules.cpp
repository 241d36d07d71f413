#include "check/rules/BuildRules.h"

#include "apps/support/ModelText.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/MeshFiles.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::ElementKind;
using ZORVEL::Fields;
using ZORVEL::MeshState;
using ZORVEL::OmissionReason;
using ZORVEL::PiecePlan;
using ZORVEL::PlacingState;
using namespace ZORVEL::RepositoryFormat;

namespace {

/// Only what has a folder: without, that is told, and everything that would be in it is missing for that reason.
bool isMarked(const DataContainer& record) { return record.GetFastFlag(ZORVEL::FLAG_VALID); }

bool lacks(const PiecePlan& plan, const wchar_t* field) {
  return !plan.canBeBuilt && plan.omission.reason == OmissionReason::NoField && plan.omission.subject == field;
}

}  // namespace

BuildRules::BuildRules(Survey& survey, const CharacterData& character, const OfferRules& offers)
    : survey_(survey),
      character_(character),
      offers_(offers),
      plans_(character, survey.root),
      poses_(apps::elementsOf(character, ZORVEL::POSES)) {}

void BuildRules::run() {
  lookAtPoses();
  lookAtSkins();
  lookAtClothes();
  lookAtAssets();
}

void BuildRules::lookAtPoses() {
  for (const DataContainer* pose : poses_) {
    const PiecePlan plan = plans_.Body(*pose, nullptr);
    if (lacks(plan, FIELD_NAME)) {
      // The assets that the pose asks for are not tried without a body.
      survey_.findings.add(RuleId::PoseWithoutName, pose, {});
      continue;
    }
    if (!plan.canBeBuilt || !isMarked(*pose)) continue;
    if (!survey_.isExplained(pose)) lookAtMesh(RuleId::BodyMeshMissing, plan, pose);
    for (const DataContainer* entry : apps::childrenOf(*pose)) lookAtMandatory(*pose, *entry);
  }
}

void BuildRules::lookAtMandatory(const DataContainer& pose, const DataContainer& entry) {
  const PiecePlan plan = plans_.Mandatory(&entry, idOf(&pose));
  const std::wstring id = idOf(&entry);
  if (plan.canBeBuilt) return lookAtMandatoryAsset(pose, entry, plan);
  switch (plan.omission.reason) {
    case OmissionReason::UnknownId: {
      if (survey_.isLost(character_, EntryKind::Assets)) return;
      const auto known = [this] { return apps::idsOf(apps::elementsOf(character_, ZORVEL::ASSETS)); };
      return survey_.findings.add(RuleId::MandatoryUnknown, &entry, {id, survey_.hintAt(id, known)});
    }
    case OmissionReason::NoField:
      if (plan.record == &entry) return survey_.findings.add(RuleId::MandatoryWithoutId, &entry, {});
      if (plan.omission.subject != FIELD_FOLDER) {
        survey_.findings.add(RuleId::AssetUnbuildable, plan.record, {plan.omission.subject});
      }
      return;
    default:
      return;  // told of the asset itself
  }
}

void BuildRules::lookAtMandatoryAsset(const DataContainer& pose, const DataContainer& entry, const PiecePlan& plan) {
  const DataContainer& asset = *plan.record;
  const std::wstring id = idOf(&entry);
  const bool isPlaced = plan.placing == PlacingState::NotNeeded || plan.placing == PlacingState::ByRow;
  const bool isTold = survey_.isLost(character_, EntryKind::AssetMatrix);
  if (!isPlaced && !isTold) survey_.findings.add(RuleId::MandatoryNotPlaced, &entry, {id});
  const bool hasMaterial = asset.CheckDatafield(FIELD_MATERIAL);
  if (isPlaced && !hasMaterial && asset.GetChildCount() > 0) {
    survey_.findings.add(RuleId::MandatoryWithoutMaterial, &entry, {id});
  } else if (isPlaced) {
    lookAtMaterial(plan, EntryKind::Asset);
  }
  if (offers_.isOffered(&asset, &pose)) survey_.findings.add(RuleId::MandatoryBuiltTwice, &entry, {id});
  const std::string why = whyNotOffered(asset);
  if (!why.empty()) survey_.findings.add(RuleId::MandatoryExcluded, &entry, {id, why});
}

std::string BuildRules::whyNotOffered(const DataContainer& asset) const {
  if (!isMarked(asset)) return "has no folder on disk";
  const DataContainer* own = character_.FindLocalAssetForGlobal(&asset);
  const DataContainer& listed = Data2::CheckAssetGlobal(&asset) && own != nullptr ? *own : asset;
  for (const DataContainer* clothing : apps::elementsOf(character_, ZORVEL::CLOTH)) {
    if (!character_.IsAssetExcludedByCloth(clothing, &listed)) continue;
    return "the clothing \"" + apps::field(clothing, FIELD_ID) + "\" excludes";
  }
  return "";
}

void BuildRules::lookAtSkins() {
  if (poses_.empty()) return;
  for (const DataContainer* skin : apps::elementsOf(character_, ZORVEL::SKINS)) {
    // Where the material is looked for does not depend on the pose.
    for (const DataContainer* pose : poses_) {
      const PiecePlan plan = plans_.Body(*pose, skin);
      if (!plan.canBeBuilt) continue;
      lookAtMaterial(plan, EntryKind::Skin);
      break;
    }
  }
}

void BuildRules::lookAtClothes() {
  for (const DataContainer* clothing : apps::elementsOf(character_, ZORVEL::CLOTH)) {
    if (!clothing->CheckDatafield(FIELD_NAME)) survey_.findings.add(RuleId::ClothingWithoutName, clothing, {});
    if (poses_.empty() || !isMarked(*clothing) || survey_.isExplained(clothing)) continue;
    for (const DataContainer* style : apps::clothChildren(*clothing, ZORVEL::MATERIAL)) {
      const PiecePlan plan = plans_.Clothing(*clothing, style, *poses_.front());
      if (plan.canBeBuilt) lookAtMaterial(plan, EntryKind::Style);
    }
  }
  for (const WornPose& pair : offers_.worn()) {
    if (!pair.canBeBuilt()) continue;
    const PiecePlan plan = plans_.Clothing(*pair.clothing, nullptr, *pair.pose);
    if (plan.canBeBuilt) lookAtMesh(RuleId::ClothingMeshMissing, plan, pair.clothing, {idOf(pair.pose)});
  }
}

void BuildRules::lookAtAssets() {
  std::set<const DataContainer*> shared;
  for (const DataContainer* asset : apps::elementsOf(character_, ZORVEL::ASSETS)) {
    if (!Data2::CheckAssetGlobal(asset)) {
      lookAtAsset(*asset, ElementKind::Asset);
      continue;
    }
    const DataContainer* record = Data2::GetGlobalAssetForAsset(asset);
    if (record != nullptr && shared.insert(record).second) lookAtAsset(*record, ElementKind::SharedAsset);
  }
}

void BuildRules::lookAtAsset(const DataContainer& asset, ElementKind kind) {
  if (!asset.CheckDatafield(FIELD_FOLDER) || survey_.isExplained(&asset)) return;
  const PiecePlan plan = plans_.Asset(kind, asset, nullptr, L"");
  if (!plan.canBeBuilt) {
    if (plan.omission.reason == OmissionReason::NoField) {
      survey_.findings.add(RuleId::AssetUnbuildable, &asset, {plan.omission.subject});
    }
    return;
  }
  if (!isMarked(asset)) return;
  if (kind == ElementKind::Asset && CharacterData::IsSpecific(&asset)) {
    for (const DataContainer* pose : poses_) lookAtAssetInPose(asset, *pose);
  } else {
    lookAtMesh(RuleId::AssetMeshMissing, plan, &asset);
  }
  lookAtAssetMaterials(asset, kind);
}

void BuildRules::lookAtAssetInPose(const DataContainer& asset, const DataContainer& pose) {
  if (!isMarked(pose) || idOf(&pose).empty()) return;
  const PiecePlan plan = plans_.Asset(ElementKind::Asset, asset, nullptr, idOf(&pose));
  lookAtMesh(RuleId::AssetPoseMeshMissing, plan, &asset, {idOf(&pose)});
}

void BuildRules::lookAtAssetMaterials(const DataContainer& asset, ElementKind kind) {
  // In some pose in which it has a place: without one it gets no material.
  const DataContainer* placed = nullptr;
  for (const DataContainer* pose : poses_) {
    const PiecePlan plan = plans_.Asset(kind, asset, nullptr, idOf(pose));
    if (plan.placing == PlacingState::NotNeeded || plan.placing == PlacingState::ByRow) {
      placed = pose;
      break;
    }
  }
  if (placed == nullptr) return;
  const auto materials = apps::childrenOf(asset);
  const bool isShared = kind == ElementKind::SharedAsset;
  if (materials.empty()) {
    lookAtMaterial(plans_.Asset(kind, asset, nullptr, idOf(placed)),
                   isShared ? EntryKind::SharedAsset : EntryKind::Asset);
  }
  for (const DataContainer* material : materials) {
    lookAtMaterial(plans_.Asset(kind, asset, material, idOf(placed)), EntryKind::AssetMaterial);
  }
}

void BuildRules::lookAtMesh(RuleId missing, const PiecePlan& plan, const DataContainer* record,
                            std::vector<Value> more) {
  const MeshState state = ZORVEL::MeshFiles::Look(plan.meshFile);
  const std::string file = survey_.shown(plan.meshFile);
  if (state == MeshState::Missing) {
    more.insert(more.begin(), file);
    survey_.findings.add(missing, record, std::move(more));
  } else if (state == MeshState::Unreadable) {
    survey_.findings.add(RuleId::MeshUnreadable, record, {file, "it is no file"});
  } else {
    survey_.meshes.push_back({survey_.paths.keep(plan.meshFile), plan.element.kind, record});
  }
}

void BuildRules::lookAtMaterial(const PiecePlan& plan, EntryKind kind) {
  if (plan.materialRecord == nullptr) return;
  const wchar_t* name = Fields::OptionalText(plan.materialRecord, FIELD_MATERIAL);
  if (name == nullptr) {
    survey_.findings.add(RuleId::MaterialUnnamed, plan.materialRecord, {wordFor(kind)});
  } else {
    survey_.materials.push_back({name, survey_.paths.keep(plan.libraries), plan.materialRecord});
  }
}

}  // namespace check
