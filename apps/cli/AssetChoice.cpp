#include "apps/cli/AssetChoice.h"

#include <algorithm>
#include <iterator>

#include "apps/support/ModelText.h"
#include "apps/support/NearestIds.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/RepositoryFormat.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "plugin/InitialChoice.h"

namespace cli {

using namespace apps;

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::OfferedElement;
using ZORVEL::PageOffer;
using ZORVEL::Selection2;
using namespace ZORVEL::RepositoryFormat;

namespace {

/// What stands for an asset on a page: for one of type "global" the shared record, where there is one.
const DataContainer* recordOf(const DataContainer& asset) {
  const DataContainer* shared = Data2::CheckAssetGlobal(&asset) ? Data2::GetGlobalAssetForAsset(&asset) : nullptr;
  return shared != nullptr ? shared : &asset;
}

}  // namespace

bool AssetChoice::wish(const std::vector<std::string>& wanted) {
  for (const std::string& one : wanted) wishFor(one);
  return result_.errors.empty();
}

void AssetChoice::wishFor(const std::string& wanted) {
  std::string id = wanted;
  std::string material;
  const DataContainer* asset = find(id);
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
  const DataContainer* record = recordOf(*asset);
  const std::vector<DataContainer*> materials = childrenOf(*record);
  const auto found = std::find_if(materials.begin(), materials.end(),
                                  [&](const DataContainer* one) { return field(one, FIELD_ID) == material; });
  if (!material.empty() && found == materials.end()) {
    result_.errors.push_back(unknownId("material of " + field(record, FIELD_ID), material, idsOf(materials)));
    return;
  }
  wishes_.push_back({id, record, material.empty() ? nullptr : *found, nullptr, 0, {}});
}

const DataContainer* AssetChoice::find(const std::string& id) const {
  const std::vector<DataContainer*> assets = elementsOf(character_, ZORVEL::ASSETS);
  for (const wchar_t* name : {FIELD_ID, FIELD_GLOBAL_ID}) {
    const auto found =
        std::find_if(assets.begin(), assets.end(), [&](const DataContainer* one) { return field(one, name) == id; });
    if (found != assets.end()) return *found;
  }
  return nullptr;
}

bool AssetChoice::fits(const Wish& wish, const OfferedElement& element) {
  const bool anyMaterial = wish.material == nullptr || element.style == nullptr;
  return element.record == wish.record && (anyMaterial || element.style == wish.material);
}

void AssetChoice::visit(const PageOffer& page, bool defaults) {
  bool wished = false;
  for (Wish& wish : wishes_) wished = visit(wish, page) || wished;
  if (wished || !defaults) return;
  ZORVEL::InitialChoice::Make(page);
  // Within the page a later one may have taken the place of an earlier.
  const auto isChosen = [](const OfferedElement& one) { return Selection2::CheckSelectedAsset(one.unique); };
  std::copy_if(page.shown.begin(), page.shown.end(), std::back_inserter(begun_), isChosen);
}

/// True when the page offers it.
bool AssetChoice::visit(Wish& wish, const PageOffer& page) const {
  const auto found = std::find_if(page.shown.begin(), page.shown.end(),
                                  [&wish](const OfferedElement& one) { return fits(wish, one); });
  const auto hidden = std::find_if(page.hidden.begin(), page.hidden.end(),
                                   [&wish](const OfferedElement& one) { return fits(wish, one); });
  if (hidden != page.hidden.end()) wish.refusal = hidden->refusal;
  if (found == page.shown.end() || wish.unique != 0) return false;
  wish.unique = found->unique;
  wish.category = page.category;
  return true;
}

void AssetChoice::lookAtHidden(const OfferedElement& element) {
  for (Wish& wish : wishes_) {
    if (fits(wish, element)) wish.refusal = element.refusal;
  }
}

void AssetChoice::select() {
  // Replacing the choice of a category takes every shared asset out of the selection, so those that replace come first.
  std::stable_partition(wishes_.begin(), wishes_.end(),
                        [](const Wish& wish) { return !CharacterData::IsMultiple(wish.category); });
  for (const Wish& wish : wishes_) click(wish);
  for (const OfferedElement& element : begun_) reportLost(element);
}

void AssetChoice::click(const Wish& wish) {
  if (wish.unique == 0) {
    result_.notes.push_back("Asset " + wish.id + " left out: " + host::toUtf8(wish.refusal.GetText()) + ".");
    return;
  }
  const bool isFirst = clickedCategories_.insert(wish.category).second;
  if (!CharacterData::IsMultiple(wish.category) && !isFirst) {
    result_.notes.push_back("Asset " + wish.id + " takes the place of an earlier one: its category, " +
                            field(wish.category, FIELD_ID) + ", takes one.");
  }
  if (Selection2::CheckSelectedAsset(wish.unique)) return;
  ZORVEL::Commands::SetSelectedAsset(static_cast<unsigned int>(wish.unique), false);
}

void AssetChoice::reportLost(const OfferedElement& element) {
  if (Selection2::CheckSelectedAsset(element.unique)) return;
  result_.notes.push_back("Asset " + nameOf(*element.record) +
                          " left out: its page begins with it, and what is chosen in another category drops it.");
}

}  // namespace cli
