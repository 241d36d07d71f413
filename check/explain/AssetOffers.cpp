#include "check/explain/AssetOffers.h"

#include "apps/support/ModelText.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/Selection2.h"

namespace check {

using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using ZORVEL::OfferedElement;
using ZORVEL::PageKind;
using ZORVEL::PageOffer;
using ZORVEL::Selection2;
using ZORVEL::WhyNot;
using ZORVEL::RepositoryFormat::FIELD_ID;

namespace {

const char* const NEVER_WORN = "no clothing can be worn in the pose";

/// What the pages list in the place of a character's asset.
const DataContainer* listedFor(const DataContainer& asset) {
  const DataContainer* shared = Data2::CheckAssetGlobal(&asset) ? Data2::GetGlobalAssetForAsset(&asset) : nullptr;
  return shared != nullptr ? shared : &asset;
}

}  // namespace

AssetOffers::AssetOffers(const Survey& survey, const ZORVEL::CharacterData& character)
    : survey_(survey), character_(character) {
  for (const PoseOffer& offer : survey.poseOffers) {
    const bool isOwn = character.GetCloth(Fields::OptionalText(offer.clothing, FIELD_ID)) == offer.clothing;
    if (isOwn && offer.isShown && offer.refusal.why == WhyNot::Nothing) worn_.push_back(&offer);
  }
}

std::vector<AssetOffers::Answer> AssetOffers::ofAsset(const DataContainer& asset, const DataContainer* material) const {
  std::vector<Answer> answers;
  for (const DataContainer* pose : apps::elementsOf(character_, ZORVEL::POSES)) {
    if (character_.GetPose(Fields::OptionalText(pose, FIELD_ID)) != pose) continue;
    const DataContainer* clothing = clothingFor(*pose, &asset);
    if (clothing == nullptr) {
      answers.push_back({pose, NEVER_WORN});
      continue;
    }
    select(*clothing, *pose);
    answers.push_back({pose, whyNotShown(asset, material)});
  }
  Selection2::Reset();
  return answers;
}

std::string AssetOffers::whyNotSkin(const DataContainer& skin) const {
  if (worn_.empty()) return "no clothing can be worn in any pose";
  select(*worn_.front()->clothing, *worn_.front()->pose);
  std::string whyNot;
  ZORVEL::PageOffers(character_, stamps_).VisitExceptPoses([&](const PageOffer& page) {
    if (page.kind != PageKind::Skins) return;
    for (const OfferedElement& element : page.hidden) {
      if (element.record == &skin) whyNot = survey_.reasonOf(element.refusal);
    }
  });
  Selection2::Reset();
  return whyNot;
}

const DataContainer* AssetOffers::clothingFor(const DataContainer& pose, const DataContainer* asset) const {
  const DataContainer* excluding = nullptr;
  for (const PoseOffer* offer : worn_) {
    if (offer->pose != &pose) continue;
    if (!character_.IsAssetExcludedByCloth(offer->clothing, asset)) return offer->clothing;
    excluding = offer->clothing;
  }
  return excluding;
}

void AssetOffers::select(const DataContainer& clothing, const DataContainer& pose) const {
  Selection2::SetCharacter(Fields::OptionalText(&character_, FIELD_ID));
  Selection2::SetCloth(Fields::OptionalText(&clothing, FIELD_ID));
  Selection2::SetPose(Fields::OptionalText(&pose, FIELD_ID));
}

std::string AssetOffers::whyNotShown(const DataContainer& asset, const DataContainer* material) const {
  const DataContainer* record = listedFor(asset);
  const DataContainer* category = character_.GetCategory(&asset);
  std::string whyNot = "no page lists it";
  const auto isMeant = [&](const OfferedElement& element) {
    return element.record == record && (material == nullptr || element.style == nullptr || element.style == material);
  };
  ZORVEL::PageOffers(character_, stamps_).VisitExceptPoses([&](const PageOffer& page) {
    if (page.kind != PageKind::Assets || page.category != category) return;
    for (const OfferedElement& element : page.hidden) {
      if (!isMeant(element)) continue;
      const bool isRow = element.refusal.why == WhyNot::NoMatrixRow;
      whyNot = isRow ? "the asset matrix has no row for it" : survey_.reasonOf(element.refusal);
    }
    for (const OfferedElement& element : page.shown) {
      if (isMeant(element)) whyNot.clear();
    }
  });
  return whyNot;
}

}  // namespace check
