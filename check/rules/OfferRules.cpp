#include "check/rules/OfferRules.h"

#include <QString>
#include <algorithm>
#include <unordered_set>

#include "apps/support/ModelText.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/RepositoryFormat.h"
#include "model/RepositoryPaths.h"
#include "model/Selection2.h"
#include "ui/WebAddress.h"

namespace check {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Fields;
using ZORVEL::OfferedElement;
using ZORVEL::PageKind;
using ZORVEL::PageOffer;
using ZORVEL::Selection2;
using ZORVEL::WhyNot;
using namespace ZORVEL::RepositoryFormat;

namespace {

/// Those that can be chosen: with an id, and the first that has it.
std::vector<const DataContainer*> choosable(const std::vector<DataContainer*>& records) {
  std::unordered_set<std::wstring> known;
  std::vector<const DataContainer*> result;
  for (const DataContainer* record : records) {
    std::wstring id = idOf(record);
    if (!id.empty() && known.insert(std::move(id)).second) result.push_back(record);
  }
  return result;
}

/// "(there is no mesh anna/dress/a_b.vrmesh, and 3 more)".
std::string reasonsOf(const std::vector<const WornPose*>& pairs, const Survey& survey) {
  std::string text = survey.reasonOf(pairs.front()->refusal);
  if (pairs.size() > 1) text += ", and " + std::to_string(pairs.size() - 1) + " more";
  return text;
}

}  // namespace

void OfferRules::run() {
  Selection2::Reset();
  Selection2::SetStyle(nullptr);
  Selection2::SetCharacter(idOf(&character_).c_str());
  lookAtLists();
  lookAtStrip();
  chooseClothes();
  choosePoses();
  tellWorn();
  tellAssetsWithoutPage();
  tellNeverOffered();
  tellAddresses();
  Selection2::Reset();
}

void OfferRules::lookAtLists() {
  struct List {
    ZORVEL::CONTAINER container;
    EntryKind kind;
    EntryKind list;
  };
  for (const List list : {List{ZORVEL::SKINS, EntryKind::Skin, EntryKind::Skins},
                          List{ZORVEL::CLOTH, EntryKind::Clothing, EntryKind::Cloth},
                          List{ZORVEL::POSES, EntryKind::Pose, EntryKind::Poses}}) {
    if (character_.GetCount(list.container) > 0) continue;
    // A clothing that was dropped while reading is told of already.
    const bool isTold =
        survey_.isLost(character_, list.list) || (list.container == ZORVEL::CLOTH && hasDroppedClothes());
    if (!isTold) survey_.findings.add(RuleId::CharacterIncomplete, &character_, {wordFor(list.kind)});
  }
  if (survey_.isLost(character_, EntryKind::Assets)) return;
  std::set<const DataContainer*> used;
  for (const DataContainer* asset : apps::elementsOf(character_, ZORVEL::ASSETS)) {
    used.insert(character_.GetCategory(asset));
  }
  // Of several with one id the first has all the assets.
  for (const DataContainer* category : choosable(apps::elementsOf(character_, ZORVEL::CATEGORIES))) {
    if (used.count(category) == 0) survey_.findings.add(RuleId::CategoryEmpty, category, {});
  }
}

bool OfferRules::hasDroppedClothes() const {
  return survey_.findings.description().hasDroppedClothes(survey_.elementOf(&character_));
}

void OfferRules::lookAtStrip() {
  const PageOffer strip = offers_.GetClothing();
  for (const OfferedElement& element : strip.shown) takePicture(strip, element);
}

void OfferRules::chooseClothes() {
  for (const DataContainer* clothing : choosable(apps::elementsOf(character_, ZORVEL::CLOTH))) {
    // Without a folder, or with an empty name of one, nothing of it is where it is looked for; that is told already.
    const bool hasFolder = !Fields::TextOrEmpty(clothing, FIELD_FOLDER).empty();
    if (hasFolder && clothing->GetFastFlag(ZORVEL::FLAG_VALID)) {
      clothes_.push_back(clothing);
    } else {
      unavailable_.push_back(clothing);
    }
    if (clothing->GetChildCount() > 0 && apps::clothChildren(*clothing, ZORVEL::MATERIAL).empty()) {
      survey_.findings.add(RuleId::ClothingWithoutStyle, clothing, {});
    }
  }
  poses_ = choosable(apps::elementsOf(character_, ZORVEL::POSES));
  choosablePoses_.insert(poses_.begin(), poses_.end());
  for (const DataContainer* clothing : clothes_) choose(*clothing);
  // Its poses are shown, and not to be chosen.
  for (const DataContainer* clothing : unavailable_) {
    Selection2::SetCloth(idOf(clothing).c_str());
    Selection2::SetPose(nullptr);
    offers_.VisitAll([&](const PageOffer& page) {
      if (page.kind == PageKind::Poses) notePoses(*clothing, page);
      for (const OfferedElement& element : page.shown) takePicture(page, element);
    });
  }
}

void OfferRules::choose(const DataContainer& clothing) {
  clothing_ = &clothing;
  pose_ = nullptr;
  Selection2::SetCloth(idOf(&clothing).c_str());
  Selection2::SetPose(nullptr);
  offers_.VisitAll([this](const PageOffer& page) {
    if (page.kind == PageKind::Poses) {
      takePoses(*clothing_, page);
    } else if (pose_ != nullptr) {
      takePage(page, true);
    }
  });
}

void OfferRules::notePoses(const DataContainer& clothing, const PageOffer& page) {
  if (!survey_.keepsOffers) return;
  for (const OfferedElement& element : page.shown) {
    survey_.poseOffers.push_back({&clothing, element.record, true, element.refusal});
  }
  for (const OfferedElement& element : page.hidden) {
    survey_.poseOffers.push_back({&clothing, element.record, false, element.refusal});
  }
}

void OfferRules::takePoses(const DataContainer& clothing, const PageOffer& page) {
  notePoses(clothing, page);
  const auto take = [&](const OfferedElement& element, bool isShown) {
    if (choosablePoses_.count(element.record) == 0 || !element.record->GetFastFlag(ZORVEL::FLAG_VALID)) return;
    worn_.push_back({&clothing, element.record, isShown, element.refusal});
  };
  for (const OfferedElement& element : page.shown) {
    take(element, true);
    takePicture(page, element);
    const bool isFirst = pose_ == nullptr && element.IsAvailable() && !idOf(element.record).empty();
    if (isFirst) pose_ = element.record;
  }
  for (const OfferedElement& element : page.hidden) take(element, false);
  if (pose_ == nullptr) return;
  visitedPoses_.insert(pose_);
  Selection2::SetPose(idOf(pose_).c_str());
}

void OfferRules::choosePoses() {
  for (const WornPose& pair : worn_) {
    if (!pair.canBeBuilt() || !visitedPoses_.insert(pair.pose).second) continue;
    clothing_ = pair.clothing;
    pose_ = pair.pose;
    Selection2::SetCloth(idOf(clothing_).c_str());
    Selection2::SetPose(idOf(pose_).c_str());
    offers_.VisitExceptPoses([this](const PageOffer& page) { takePage(page, false); });
  }
}

void OfferRules::takePage(const PageOffer& page, bool isFirstOfClothing) {
  if (page.kind == PageKind::Skins && !skinsAreTold_) takeSkins(page);
  if (page.kind == PageKind::Styles && isFirstOfClothing) takeStyles(page);
  if (page.kind == PageKind::Assets) takeAssets(page);
}

void OfferRules::takeSkins(const PageOffer& page) {
  skinsAreTold_ = true;
  for (const OfferedElement& element : page.shown) takePicture(page, element);
  if (page.shown.empty() && !page.hidden.empty()) {
    return survey_.findings.add(RuleId::NoSkinShown, &character_, {survey_.reasonOf(page.hidden.front().refusal)});
  }
  for (const OfferedElement& element : page.hidden) {
    tellPictureMissing(RuleId::SkinPictureMissing, element, EntryKind::Skin);
  }
}

void OfferRules::takeStyles(const PageOffer& page) {
  for (const OfferedElement& element : page.shown) {
    if (stamps_.Exists(element.picturePath)) {
      takePicture(page, element);
    } else {
      tellPictureMissing(RuleId::StylePictureMissing, element, EntryKind::Style);
    }
  }
}

void OfferRules::takeAssets(const PageOffer& page) {
  for (const OfferedElement& element : page.shown) {
    takePicture(page, element);
    offered_.emplace(element.record, pose_);
  }
  for (const OfferedElement& element : page.hidden) {
    const WhyNot why = element.refusal.why;
    const bool isMaterial = element.style != nullptr;
    if (why != WhyNot::PictureMissing || survey_.isExplained(element.record)) continue;
    tellPictureMissing(isMaterial ? RuleId::MaterialPictureMissing : RuleId::AssetPictureMissing, element,
                       isMaterial ? EntryKind::AssetMaterial : EntryKind::Asset);
  }
  if (!page.hidden.empty()) noteWithoutRow(*page.category);
  const bool isEmpty = page.shown.empty() && CharacterData::IsRequired(page.category);
  const bool hasReason = std::any_of(page.hidden.begin(), page.hidden.end(), [](const OfferedElement& element) {
    return element.refusal.why == WhyNot::NoMatrixRow;
  });
  if (isEmpty && hasReason && !survey_.isLost(character_, EntryKind::AssetMatrix))
    survey_.findings.add(RuleId::RequiredCategoryEmpty, page.category, {idOf(pose_)});
}

void OfferRules::noteWithoutRow(const DataContainer& category) {
  for (const ZORVEL::ListedAsset& listed : character_.ListAssetsForCategory(&category)) {
    if (listed.whyNot == WhyNot::NoMatrixRow) withoutRow_[listed.asset].insert(pose_);
  }
}

void OfferRules::takePicture(const PageOffer& page, const OfferedElement& element) {
  const DataContainer* record = element.style != nullptr ? element.style : element.record;
  // A pose has one for each clothing.
  if (page.kind != PageKind::Poses && !pictured_.insert(record).second) return;
  survey_.pictures.push_back({survey_.paths.keep(element.picturePath), page.kind, record});
}

void OfferRules::tellPictureMissing(RuleId rule, const OfferedElement& element, EntryKind kind) {
  const DataContainer* record = element.style != nullptr ? element.style : element.record;
  if (rule != RuleId::AssetPictureMissing && Fields::TextOrEmpty(record, FIELD_PREVIEW).empty()) {
    const bool isShown = kind == EntryKind::Style;
    survey_.findings.add(RuleId::PreviewUnnamed, record, {wordFor(kind), isShown ? "" : " and is not shown"});
  } else {
    survey_.findings.add(rule, record, {survey_.shown(element.picturePath)});
  }
}

/// A clothing or a pose with which nothing goes is told once, not once for each file that is missing.
void OfferRules::tellWorn() {
  std::map<const DataContainer*, std::vector<const WornPose*>> ofClothing;
  std::map<const DataContainer*, std::vector<const WornPose*>> ofPose;
  std::set<const DataContainer*> useful;
  for (const WornPose& pair : worn_) {
    if (pair.canBeBuilt()) useful.insert({pair.clothing, pair.pose});
    if (!pair.canBeBuilt()) ofClothing[pair.clothing].push_back(&pair);
  }
  for (const DataContainer* clothing : clothes_) {
    const std::vector<const WornPose*>& missing = ofClothing[clothing];
    const bool isNeverWorn = useful.count(clothing) == 0 && !missing.empty();
    if (isNeverWorn) {
      survey_.findings.add(RuleId::ClothingNeverWorn, clothing, {reasonsOf(missing, survey_)});
      continue;
    }
    for (const WornPose* pair : missing) ofPose[pair->pose].push_back(pair);
  }
  for (const DataContainer* pose : poses_) {
    const std::vector<const WornPose*>& missing = ofPose[pose];
    if (useful.count(pose) == 0 && !missing.empty()) {
      survey_.findings.add(RuleId::PoseNeverWorn, pose, {reasonsOf(missing, survey_)});
      continue;
    }
    for (const WornPose* pair : missing) tellPair(*pair);
  }
}

void OfferRules::tellPair(const WornPose& pair) {
  const std::string file = survey_.shown(pair.refusal.concerned);
  if (pair.refusal.why == WhyNot::PictureMissing) {
    survey_.findings.add(RuleId::PosePictureMissing, pair.pose, {file, idOf(pair.clothing)});
  } else if (pair.refusal.why == WhyNot::MeshMissing) {
    survey_.findings.add(RuleId::ClothingMeshMissing, pair.clothing, {file, idOf(pair.pose)});
  }
}

OfferRules::AskedFor OfferRules::askedForByPoses() const {
  const auto all = [this] { return apps::idsOf(apps::elementsOf(character_, ZORVEL::ASSETS)); };
  AskedFor asked;
  for (const DataContainer* pose : apps::elementsOf(character_, ZORVEL::POSES)) {
    for (const DataContainer* entry : apps::childrenOf(*pose)) {
      const std::wstring id = idOf(entry);
      if (id.empty()) asked.isAny = true;
      if (!asked.ids.insert(id).second || character_.GetAsset(id.c_str()) != nullptr) continue;
      asked.ids.insert(survey_.nearestTo(id, all));
    }
  }
  return asked;
}

/// Such an asset needs no page. An entry that names none may mean it.
bool OfferRules::isAskedForByAPose(const std::wstring& id) {
  if (survey_.isLost(character_, EntryKind::Poses)) return true;
  if (!askedFor_) askedFor_ = askedForByPoses();
  return askedFor_->isAny || askedFor_->ids.count(id) > 0;
}

void OfferRules::tellAssetsWithoutPage() {
  if (survey_.isLost(character_, EntryKind::Categories)) return;
  const auto known = [this] { return apps::idsOf(apps::elementsOf(character_, ZORVEL::CATEGORIES)); };
  offers_.VisitAssetsWithoutPage([&](const OfferedElement& element) {
    const std::wstring& id = element.refusal.concerned;
    if (element.refusal.why == WhyNot::CategoryUnnamed) {
      if (!isAskedForByAPose(idOf(element.record))) {
        survey_.findings.add(RuleId::AssetCategoryUnnamed, element.record, {});
      }
    } else {
      survey_.findings.add(RuleId::AssetCategoryUnknown, element.record, {id, survey_.hintAt(id, known)});
    }
  });
}

void OfferRules::tellNeverOffered() {
  const auto clothes = apps::elementsOf(character_, ZORVEL::CLOTH);
  const bool hasAll = !clothes.empty() && !hasDroppedClothes();
  for (const DataContainer* asset : apps::elementsOf(character_, ZORVEL::ASSETS)) {
    const bool isSecond = survey_.findings.has(RuleId::AssetIdDuplicate, asset) ||
                          survey_.findings.has(RuleId::GlobalReferencedTwice, asset);
    if (isSecond || survey_.isExplained(asset)) continue;
    tellWithoutRow(*asset);
    if (!hasAll) continue;
    const bool isExcluded = std::all_of(clothes.begin(), clothes.end(), [&](const DataContainer* clothing) {
      return character_.IsAssetExcludedByCloth(clothing, asset);
    });
    if (isExcluded) survey_.findings.add(RuleId::AssetAlwaysExcluded, asset, {});
  }
}

void OfferRules::tellWithoutRow(const DataContainer& asset) {
  const std::set<const DataContainer*>& poses = withoutRow_[&asset];
  if (poses.empty() || survey_.isLost(character_, EntryKind::AssetMatrix)) return;
  if (poses.size() == visitedPoses_.size()) return survey_.findings.add(RuleId::AssetInNoPose, &asset, {});
  const auto& missed = survey_.missedPairs;
  for (const DataContainer* pose : poses) {
    const std::wstring id = idOf(pose);
    const bool isTold = missed.count({&character_, id, idOf(&asset)}) + missed.count({&character_, id, L""}) +
                            missed.count({&character_, L"", idOf(&asset)}) >
                        0;
    if (!isTold) survey_.findings.add(RuleId::AssetNotInPose, &asset, {id});
  }
}

void OfferRules::tellAddresses() {
  std::set<const DataContainer*> grey;
  for (const WornPose& pair : worn_) {
    if (pair.isShown && !pair.canBeBuilt()) grey.insert(pair.pose);
  }
  for (const DataContainer* pose : poses_) {
    const std::wstring url = Fields::TextOrEmpty(pose, FIELD_URL);
    if (url.empty()) {
      if (grey.count(pose) > 0) survey_.findings.add(RuleId::AddressMissing, pose, {});
    } else if (!ZORVEL::WebAddress::IsAllowed(QString::fromStdWString(url))) {
      survey_.findings.add(RuleId::AddressRefused, pose, {url});
    } else if (url.find(L'?') == std::wstring::npos) {
      survey_.findings.add(RuleId::AddressWithoutQuery, pose, {url});
    }
  }
}

}  // namespace check
