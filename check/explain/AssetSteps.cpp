#include "check/explain/AssetSteps.h"

#include <algorithm>
#include <map>

#include "apps/support/ModelText.h"
#include "check/explain/MaterialSteps.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/MeshFiles.h"
#include "model/PiecePlans.h"
#include "model/RepositoryFormat.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::ElementKind;
using ZORVEL::Fields;
using ZORVEL::MeshState;
using ZORVEL::PiecePlan;
using namespace ZORVEL::RepositoryFormat;

namespace {

std::string idField(const DataContainer* record) { return apps::field(record, FIELD_ID); }

/// Null for one that stands for a shared asset that there is not.
const DataContainer* builtFrom(const DataContainer& asset) {
  return Data2::CheckAssetGlobal(&asset) ? Data2::GetGlobalAssetForAsset(&asset) : &asset;
}

std::size_t countOffered(const std::vector<AssetOffers::Answer>& answers) {
  return static_cast<std::size_t>(
      std::count_if(answers.begin(), answers.end(), [](const auto& answer) { return answer.whyNot.empty(); }));
}

std::string listOf(const std::vector<std::string>& texts) {
  std::string list;
  for (const std::string& text : texts) list += (list.empty() ? "" : ", ") + text;
  return list;
}

}  // namespace

Outcome AssetSteps::addAsset(const CharacterData& character, const DataContainer& asset,
                             const DataContainer* material) {
  addType(asset);
  const bool isAskedFor = addAskingPoses(character, asset);
  const bool hasPage = addCategoryOf(character, asset, isAskedFor);
  addClothes(character, asset);
  const Answers answers = AssetOffers(survey_, character).ofAsset(asset, material);
  const std::size_t offered = hasPage ? addPoses(answers) : 0;
  const DataContainer* record = builtFrom(asset);
  if (record == nullptr) return {false, "never offered"};
  const std::string whyNot = addMeshes(character, *record, answers);
  addMaterials(*record, material);
  if (offered == 0 && !isAskedFor) return {false, "never offered"};
  const std::string where =
      offered > 0 ? "offered in " + ofAll(offered, answers.size(), "poses") : "asked for by poses";
  return whyNot.empty() ? Outcome{true, where + " and built"} : Outcome{false, where + " and never built: " + whyNot};
}

Outcome AssetSteps::addShared(const DataContainer& shared, const DataContainer* material) {
  std::size_t offering = 0;
  std::string whyNot = "no character has it";
  const auto characters = apps::characters();
  for (const CharacterData* character : characters) {
    const DataContainer* own = character->FindLocalAssetForGlobal(&shared);
    if (own == nullptr) {
      steps_.note("character", idField(character) + " has no asset that stands for it");
      continue;
    }
    const Answers answers = AssetOffers(survey_, *character).ofAsset(*own, material);
    const std::size_t offered = countOffered(answers);
    steps_.count("character", offered, answers.size(),
                 idField(character) + " has it as " + idField(own) + ", offered in ", "poses");
    if (offered > 0) ++offering;
    if (character == characters.front()) whyNot = addMeshes(*character, shared, answers);
  }
  addMaterials(shared, material);
  if (offering == 0) return {false, "never offered"};
  const std::string where = "offered by " + ofAll(offering, characters.size(), "characters");
  return whyNot.empty() ? Outcome{true, where + " and built"} : Outcome{false, where + " and never built: " + whyNot};
}

Outcome AssetSteps::addCategory(const CharacterData& character, const DataContainer& category) {
  const AssetOffers offers(survey_, character);
  std::size_t all = 0;
  std::size_t offered = 0;
  for (const DataContainer* asset : apps::elementsOf(character, ZORVEL::ASSETS)) {
    if (character.GetCategory(asset) != &category) continue;
    const Answers answers = offers.ofAsset(*asset, nullptr);
    ++all;
    if (countOffered(answers) > 0) ++offered;
    steps_.count("asset", countOffered(answers), answers.size(), idField(asset) + " is offered in ", "poses");
  }
  if (all == 0) return {false, "no tab: no asset is in it"};
  return {offered > 0, "its tab offers " + ofAll(offered, all, "assets")};
}

void AssetSteps::addType(const DataContainer& asset) {
  if (!Data2::CheckAssetGlobal(&asset)) {
    const bool isSpecific = CharacterData::IsSpecific(&asset);
    return steps_.note("type", isSpecific ? "specific: a mesh for each pose" : "common: a row for each pose places it");
  }
  const DataContainer* shared = Data2::GetGlobalAssetForAsset(&asset);
  if (shared == nullptr) return;  // why is said of its mark
  steps_.good("type", "global: stands for " + idField(shared) + " in line " + std::to_string(survey_.lineOf(shared)));
}

bool AssetSteps::addCategoryOf(const CharacterData& character, const DataContainer& asset, bool isAskedFor) {
  const DataContainer* category = character.GetCategory(&asset);
  if (category != nullptr) {
    steps_.good("category", idField(category) + ", tab \"" + apps::field(category, FIELD_NAME) + '"');
    return true;
  }
  ZORVEL::FileStamps stamps;
  ZORVEL::PageOffers(character, stamps).VisitAssetsWithoutPage([&](const ZORVEL::OfferedElement& element) {
    if (element.record != &asset) return;
    // One that a pose asks for needs none.
    const bool isMeant = isAskedFor && element.refusal.why == ZORVEL::WhyNot::CategoryUnnamed;
    if (isMeant) steps_.note("category", "none: it is on no page");
    if (!isMeant) steps_.bad("category", survey_.reasonOf(element.refusal));
  });
  return false;
}

void AssetSteps::addClothes(const CharacterData& character, const DataContainer& asset) {
  std::vector<std::string> excluding;
  std::vector<std::string> selecting;
  const auto clothes = apps::elementsOf(character, ZORVEL::CLOTH);
  for (const DataContainer* clothing : clothes) {
    if (character.IsAssetExcludedByCloth(clothing, &asset)) excluding.push_back(idField(clothing));
    for (const DataContainer* select : apps::clothChildren(*clothing, ZORVEL::SELECT)) {
      if (apps::field(select, FIELD_ASSET_ID) == idField(&asset)) selecting.push_back(idField(clothing));
    }
  }
  if (!excluding.empty() && excluding.size() == clothes.size()) {
    steps_.bad("excluded", "by all clothes");
  } else if (!excluding.empty()) {
    steps_.note("excluded", "by " + listOf(excluding));
  }
  if (!selecting.empty()) steps_.note("selected", "by " + listOf(selecting));
}

bool AssetSteps::addAskingPoses(const CharacterData& character, const DataContainer& asset) {
  std::vector<std::string> asking;
  for (const DataContainer* pose : apps::elementsOf(character, ZORVEL::POSES)) {
    const std::wstring id = Fields::TextOrEmpty(&asset, FIELD_ID);
    if (CharacterData::FindElementById(pose, id.c_str()) != nullptr) asking.push_back(idField(pose));
  }
  if (!asking.empty())
    steps_.note("asked for", "by the pose" + std::string(asking.size() > 1 ? "s " : " ") + listOf(asking));
  return !asking.empty();
}

std::size_t AssetSteps::addPoses(const Answers& answers) {
  const std::size_t offered = countOffered(answers);
  steps_.count("poses", offered, answers.size(), "offered in ", "poses");
  std::map<std::string, std::vector<std::string>> places;
  std::vector<std::string> reasons;
  for (const AssetOffers::Answer& answer : answers) {
    if (answer.whyNot.empty()) continue;
    if (places[answer.whyNot].empty()) reasons.push_back(answer.whyNot);
    places[answer.whyNot].push_back(idField(answer.pose));
  }
  for (const std::string& reason : reasons) {
    const std::vector<std::string>& in = places[reason];
    steps_.bad("poses", (in.size() == answers.size() ? "all poses" : listOf(in)) + ": " + reason);
  }
  return offered;
}

std::string AssetSteps::addMeshes(const CharacterData& character, const DataContainer& record, const Answers& answers) {
  const bool isShared = Data2::CheckAssetGlobal(&record);
  const ZORVEL::PiecePlans plans(character, survey_.root);
  std::map<std::wstring, std::string> meshes;
  for (const AssetOffers::Answer& answer : answers) {
    const PiecePlan plan = plans.Asset(isShared ? ElementKind::SharedAsset : ElementKind::Asset, record, nullptr,
                                       Fields::TextOrEmpty(answer.pose, FIELD_ID));
    meshes.emplace(plan.meshFile, whyNotBuilt(plan));
  }
  std::string first;
  std::size_t missing = 0;
  for (const auto& [mesh, whyNot] : meshes) {
    if (whyNot.empty()) continue;
    steps_.bad("mesh", whyNot);
    if (missing++ == 0) first = whyNot;
  }
  if (missing < meshes.size()) {
    const std::string good = survey_.shown(meshes.begin()->first);
    steps_.good("mesh", meshes.size() == 1 ? good : ofAll(meshes.size() - missing, meshes.size(), "are there"));
    return "";
  }
  return first;
}

std::string AssetSteps::whyNotBuilt(const PiecePlan& plan) const {
  if (!plan.canBeBuilt) return "it has no \"" + host::toUtf8(plan.omission.subject) + '"';
  const MeshState state = ZORVEL::MeshFiles::Look(plan.meshFile);
  const std::string file = survey_.shown(plan.meshFile);
  if (state == MeshState::Missing) return "there is no mesh " + file;
  return state == MeshState::Unreadable ? file + " cannot be read" : "";
}

void AssetSteps::addMaterials(const DataContainer& record, const DataContainer* material) {
  MaterialSteps steps(survey_, libraries_, steps_);
  if (material != nullptr) return steps.add(*material, "");
  if (record.GetChildCount() == 0) return steps.add(record, "");
  for (const DataContainer* one : apps::childrenOf(record)) steps.add(*one, idField(one) + ": ");
}

}  // namespace check
