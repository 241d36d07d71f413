#include "apps/cli/Choice.h"

#include <algorithm>

#include "apps/cli/ModelText.h"
#include "apps/cli/NearestIds.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Selection2.h"

namespace cli {

namespace {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Selection2;

/// Whether elements of a list have a folder that decides whether they can be used.
enum class Usable { IfFolderFound, Always };

template <class Record>
std::vector<std::string> idsOf(const std::vector<Record*>& records) {
  std::vector<std::string> ids;
  for (const Record* record : records) ids.push_back(field(record, L"id"));
  return ids;
}

std::string unknown(const std::string& kind, const std::string& wanted, const std::vector<std::string>& known) {
  std::string text = "There is no " + kind + " with the id \"" + wanted + "\"";
  const std::vector<std::string> near = nearestIds(wanted, known);
  const std::vector<std::string>& named = near.empty() ? known : near;
  if (named.empty()) return text + ".";
  text += near.empty() ? "; known: " : "; nearest: ";
  for (std::size_t i = 0; i < named.size() && i < 8; ++i) text += (i == 0 ? "" : ", ") + named[i];
  return text + ".";
}

class Chooser {
 public:
  explicit Chooser(const CreateOptions& options) : options_(options) {}

  ChoiceResult run() {
    Selection2::Reset();
    Selection2::SetStyle(nullptr);
    character_ = pick("character", options_.character, characters(), Usable::IfFolderFound, Selection2::SetCharacter);
    if (character_ != nullptr) chooseElements();
    return std::move(result_);
  }

 private:
  void chooseElements() {
    const DataContainer* cloth = pick("clothing", options_.cloth, elementsOf(*character_, ZORVEL::CLOTH),
                                      Usable::IfFolderFound, Selection2::SetCloth);
    pick("pose", options_.pose, elementsOf(*character_, ZORVEL::POSES), Usable::IfFolderFound, Selection2::SetPose);
    pick("skin", options_.skin, elementsOf(*character_, ZORVEL::SKINS), Usable::Always, Selection2::SetSkin);
    if (cloth == nullptr) return;
    pick("style of " + field(cloth, L"id"), options_.style, clothChildren(*cloth, ZORVEL::MATERIAL), Usable::Always,
         Selection2::SetStyle);
    for (const std::string& wanted : options_.assets) chooseAsset(wanted);
  }

  template <class Record>
  Record* pick(const std::string& kind, const std::optional<std::string>& wanted, const std::vector<Record*>& records,
               Usable usable, void (*select)(const wchar_t*)) {
    const auto fits = [&](const Record* record) {
      if (wanted.has_value()) return field(record, L"id") == *wanted;
      return usable == Usable::Always || isUsable(*record);
    };
    const auto found = std::find_if(records.begin(), records.end(), fits);
    if (found == records.end()) {
      result_.errors.push_back(wanted.has_value() ? unknown(kind, *wanted, idsOf(records))
                                                  : "There is no usable " + kind + " to choose.");
      return nullptr;
    }
    select(host::toWide(field(*found, L"id")).c_str());
    return *found;
  }

  void chooseAsset(const std::string& wanted) {
    std::string id = wanted;
    std::string material;
    DataContainer* own = findAsset(id);
    // An id may hold a colon itself, so the whole text is tried first.
    const std::size_t colon = wanted.rfind(':');
    if (own == nullptr && colon != std::string::npos) {
      id = wanted.substr(0, colon);
      material = wanted.substr(colon + 1);
      own = findAsset(id);
    }
    if (own == nullptr) {
      result_.errors.push_back(unknown("asset", id, idsOf(elementsOf(*character_, ZORVEL::ASSETS))));
      return;
    }
    chooseOwn(*own, material);
  }

  /// By its own id, or by the id of the global asset that it stands for.
  DataContainer* findAsset(const std::string& id) const {
    const std::vector<DataContainer*> assets = elementsOf(*character_, ZORVEL::ASSETS);
    for (const wchar_t* name : {L"id", L"globalID"}) {
      const auto found =
          std::find_if(assets.begin(), assets.end(), [&](const DataContainer* one) { return field(one, name) == id; });
      if (found != assets.end()) return *found;
    }
    return nullptr;
  }

  void chooseOwn(DataContainer& own, const std::string& material) {
    DataContainer* record = Data2::CheckAssetGlobal(&own) ? Data2::GetGlobalAssetForAsset(&own) : &own;
    if (record == nullptr) record = &own;
    const DataContainer* chosen = record;
    if (!material.empty()) {
      const std::vector<DataContainer*> materials = childrenOf(*record);
      const auto found = std::find_if(materials.begin(), materials.end(),
                                      [&](const DataContainer* one) { return field(one, L"id") == material; });
      if (found == materials.end()) {
        result_.errors.push_back(unknown("material of " + field(&own, L"id"), material, idsOf(materials)));
        return;
      }
      chosen = *found;
    }
    if (isOffered(own, record)) select(own, *chosen);
  }

  bool isOffered(const DataContainer& own, const DataContainer* record) {
    std::vector<DataContainer*> offered;
    character_->GetAssetsForCategory(offered, character_->GetCategory(&own));
    const std::string name = "Asset " + field(&own, L"id");
    if (std::find(offered.begin(), offered.end(), record) == offered.end()) {
      const DataContainer* cloth = character_->GetCloth(Selection2::GetCloth());
      result_.notes.push_back(name + (character_->IsAssetExcludedByCloth(cloth, &own)
                                          ? " left out: the clothing excludes it."
                                          : " left out: it has no place in this pose, or no category."));
      return false;
    }
    if (isUsable(*record)) return true;
    result_.notes.push_back(name + " left out: its folder is missing.");
    return false;
  }

  void select(const DataContainer& own, const DataContainer& chosen) {
    const DataContainer* category = character_->GetCategory(&own);
    const int before = Selection2::GetAssetCount();
    if (!CharacterData::IsMultiple(category)) Selection2::RemoveAssetsOfCategory(category, character_);
    if (Selection2::GetAssetCount() < before) {
      result_.notes.push_back("Asset " + field(&own, L"id") + " takes the place of an earlier one: its category, " +
                              field(category, L"id") + ", takes one.");
    }
    Selection2::AddAsset(Data2::GetUnique(&chosen));
  }

  const CreateOptions& options_;
  CharacterData* character_ = nullptr;
  ChoiceResult result_;
};

}  // namespace

ChoiceResult choose(const CreateOptions& options) { return Chooser(options).run(); }

}  // namespace cli
