#include "apps/cli/AssetChoice.h"

#include <algorithm>

#include "apps/cli/ModelText.h"
#include "apps/cli/NearestIds.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"

namespace cli {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Selection2;

namespace {

/// By the rules of its category; no window is there to be refreshed.
void add(const DataContainer& chosen) {
  ZORVEL::Commands::SetSelectedAsset(static_cast<unsigned int>(Data2::GetUnique(&chosen)), false);
}

}  // namespace

void AssetChoice::wish(const std::string& wanted) {
  std::string id = wanted;
  std::string material;
  DataContainer* asset = find(id);
  // An id may hold a colon itself, so the whole text is tried first.
  const std::size_t colon = wanted.rfind(':');
  if (asset == nullptr && colon != std::string::npos) {
    id = wanted.substr(0, colon);
    material = wanted.substr(colon + 1);
    asset = find(id);
  }
  if (asset == nullptr) {
    result_.errors.push_back(unknownId("asset", id, idsOf(elementsOf(character_, ZORVEL::ASSETS))));
    return;
  }
  DataContainer* record = recordOf(*asset);
  const DataContainer* chosen = record;
  if (!material.empty() || record->GetChildCount() > 0) chosen = findMaterial(*record, material);
  if (chosen != nullptr && isOffered(*asset, record)) wishes_.push_back({id, character_.GetCategory(asset), chosen});
}

void AssetChoice::select(bool defaults) {
  const auto isWished = [this](const DataContainer* category) {
    return std::any_of(wishes_.begin(), wishes_.end(), [&](const Wish& wish) { return wish.category == category; });
  };
  for (const DataContainer* category : elementsOf(character_, ZORVEL::CATEGORIES)) {
    if (defaults && !isWished(category)) selectDefaults(*category);
  }
  // Replacing the choice of a category takes every shared asset out of the selection, so those that replace come first.
  std::stable_partition(wishes_.begin(), wishes_.end(),
                        [](const Wish& wish) { return !CharacterData::IsMultiple(wish.category); });
  for (std::size_t i = 0; i < wishes_.size(); ++i) selectWish(i);
}

void AssetChoice::selectDefaults(const DataContainer& category) {
  std::vector<DataContainer*> offered;
  character_.GetAssetsForCategory(offered, &category);
  bool first = true;
  const auto offer = [&](const DataContainer* record, const DataContainer* material) {
    const bool required = first && CharacterData::IsRequired(&category);
    first = false;
    if (!required && !character_.CheckAssetStyleForClothSelection(record, material)) return;
    add(material != nullptr ? *material : *record);
  };
  for (const DataContainer* record : offered) {
    if (!isUsable(*record)) continue;
    // An asset with materials is offered once for each, one without as itself.
    for (const DataContainer* material : childrenOf(*record)) offer(record, material);
    if (record->GetChildCount() == 0) offer(record, nullptr);
  }
}

void AssetChoice::selectWish(std::size_t index) {
  const Wish& wish = wishes_[index];
  const auto sameCategory = [&](const Wish& other) { return other.category == wish.category; };
  const auto end = wishes_.begin() + static_cast<std::ptrdiff_t>(index);
  if (!CharacterData::IsMultiple(wish.category) && std::any_of(wishes_.begin(), end, sameCategory)) {
    result_.notes.push_back("Asset " + wish.id + " takes the place of an earlier one: its category, " +
                            field(wish.category, L"id") + ", takes one.");
  }
  add(*wish.chosen);
}

DataContainer* AssetChoice::find(const std::string& id) const {
  const std::vector<DataContainer*> assets = elementsOf(character_, ZORVEL::ASSETS);
  for (const wchar_t* name : {L"id", L"globalID"}) {
    const auto found =
        std::find_if(assets.begin(), assets.end(), [&](const DataContainer* one) { return field(one, name) == id; });
    if (found != assets.end()) return *found;
  }
  return nullptr;
}

DataContainer* AssetChoice::findMaterial(const DataContainer& record, const std::string& id) {
  const std::vector<DataContainer*> materials = childrenOf(record);
  if (id.empty()) return materials.front();
  const auto found = std::find_if(materials.begin(), materials.end(),
                                  [&](const DataContainer* one) { return field(one, L"id") == id; });
  if (found != materials.end()) return *found;
  result_.errors.push_back(unknownId("material of " + field(&record, L"id"), id, idsOf(materials)));
  return nullptr;
}

DataContainer* AssetChoice::recordOf(DataContainer& asset) {
  DataContainer* shared = Data2::CheckAssetGlobal(&asset) ? Data2::GetGlobalAssetForAsset(&asset) : nullptr;
  return shared != nullptr ? shared : &asset;
}

bool AssetChoice::isOffered(const DataContainer& asset, const DataContainer* record) {
  std::vector<DataContainer*> offered;
  character_.GetAssetsForCategory(offered, character_.GetCategory(&asset));
  const std::string name = "Asset " + field(&asset, L"id");
  if (std::find(offered.begin(), offered.end(), record) == offered.end()) {
    const DataContainer* cloth = character_.GetCloth(Selection2::GetCloth());
    result_.notes.push_back(name + (character_.IsAssetExcludedByCloth(cloth, &asset)
                                        ? " left out: the clothing excludes it."
                                        : " left out: it has no place in this pose, or no category."));
    return false;
  }
  if (isUsable(*record)) return true;
  result_.notes.push_back(name + " left out: its folder is missing.");
  return false;
}

}  // namespace cli
