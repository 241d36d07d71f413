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

/// For the middle of a sentence.
std::string reasonOf(const ZORVEL::Refusal& refusal, const FolderIndex& files) {
  const std::string file = files.shown(refusal.concerned);
  if (refusal.why == WhyNot::PictureMissing) return "there is no picture " + file;
  if (refusal.why == WhyNot::MeshMissing) return "there is no mesh " + file;
  std::string text = host::toUtf8(refusal.GetText());
  if (!text.empty() && text.back() == '.') text.pop_back();
  return text;
}

/// "(there is no mesh anna/dress/a_b.vrmesh, and 3 more)".
std::string reasonsOf(const std::vector<const WornPose*>& pairs, const FolderIndex& files) {
  std::string text = reasonOf(pairs.front()->refusal, files);
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
  tellAssetsWithoutRow();
  tellAddresses();
  Selection2::Reset();
}

void OfferRules::lookAtLists() {
  struct List {
    ZORVEL::CONTAINER container;
    EntryKind kind;
  };
  for (const List list : {List{ZORVEL::SKINS, EntryKind::Skin}, List{ZORVEL::CLOTH, EntryKind::Clothing},
                          List{ZORVEL::POSES, EntryKind::Pose}}) {
    if (character_.GetCount(list.container) > 0) continue;
    // A clothing that was dropped while reading is told of already.
    const auto& notes = survey_.findings.description().notes();
    const bool isTold = list.container == ZORVEL::CLOTH &&
                        std::any_of(notes.begin(), notes.end(), [this](const ZORVEL::ParseNote& note) {
                          const Description& description = survey_.findings.description();
                          if (note.kind != ZORVEL::ParseNoteKind::ClothingWithoutPreview) return false;
                          const ZORVEL::XmlElement* parent = description.parentOf(*note.source);
                          return parent != nullptr && description.parentOf(*parent) == survey_.elementOf(&character_);
                        });
    if (!isTold) survey_.findings.add(RuleId::CharacterIncomplete, &character_, {wordFor(list.kind)});
  }
  std::set<const DataContainer*> used;
  for (const DataContainer* asset : apps::elementsOf(character_, ZORVEL::ASSETS)) {
    used.insert(character_.GetCategory(asset));
  }
  for (const DataContainer* category : apps::elementsOf(character_, ZORVEL::CATEGORIES)) {
    const bool isUsed = used.count(category) > 0;
    if (!isUsed && !idOf(category).empty()) survey_.findings.add(RuleId::CategoryEmpty, category, {});
  }
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
    } else if (hasFolder) {
      unavailable_.push_back(clothing);
    }
    if (clothing->GetChildCount() > 0 && apps::clothChildren(*clothing, ZORVEL::MATERIAL).empty()) {
      survey_.findings.add(RuleId::ClothingWithoutStyle, clothing, {});
    }
  }
  poses_ = choosable(apps::elementsOf(character_, ZORVEL::POSES));
  choosablePoses_.insert(poses_.begin(), poses_.end());
  for (const DataContainer* clothing : clothes_) choose(*clothing);
  // Its poses are shown, all of them grey.
  for (const DataContainer* clothing : unavailable_) {
    Selection2::SetCloth(idOf(clothing).c_str());
    Selection2::SetPose(nullptr);
    offers_.VisitAll([this](const PageOffer& page) {
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

void OfferRules::takePoses(const DataContainer& clothing, const PageOffer& page) {
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
    return survey_.findings.add(RuleId::NoSkinShown, &character_,
                                {reasonOf(page.hidden.front().refusal, survey_.files)});
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
    if (why == WhyNot::NoMatrixRow) withoutRow_[element.record].push_back(pose_);
    if (why == WhyNot::Excluded) excludedBy_[element.record].insert(clothing_);
    if (why != WhyNot::PictureMissing) continue;
    tellPictureMissing(isMaterial ? RuleId::MaterialPictureMissing : RuleId::AssetPictureMissing, element,
                       isMaterial ? EntryKind::AssetMaterial : EntryKind::Asset);
  }
  const bool isEmpty = page.shown.empty() && CharacterData::IsRequired(page.category);
  const bool hasReason = std::any_of(page.hidden.begin(), page.hidden.end(), [](const OfferedElement& element) {
    return element.refusal.why == WhyNot::NoMatrixRow;
  });
  if (isEmpty && hasReason) survey_.findings.add(RuleId::RequiredCategoryEmpty, page.category, {idOf(pose_)});
}

void OfferRules::takePicture(const PageOffer& page, const OfferedElement& element) {
  const DataContainer* record = element.style != nullptr ? element.style : element.record;
  // A pose has one for each clothing.
  if (page.kind != PageKind::Poses && !pictured_.insert(record).second) return;
  survey_.pictures.push_back({element.picturePath, page.kind, record});
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
      survey_.findings.add(RuleId::ClothingNeverWorn, clothing, {reasonsOf(missing, survey_.files)});
      continue;
    }
    for (const WornPose* pair : missing) ofPose[pair->pose].push_back(pair);
  }
  for (const DataContainer* pose : poses_) {
    const std::vector<const WornPose*>& missing = ofPose[pose];
    if (useful.count(pose) == 0 && !missing.empty()) {
      survey_.findings.add(RuleId::PoseNeverWorn, pose, {reasonsOf(missing, survey_.files)});
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

/// The ids of assets that poses ask for; such an asset needs no page.
std::set<std::wstring> OfferRules::askedForByPoses() const {
  std::set<std::wstring> ids;
  for (const DataContainer* pose : apps::elementsOf(character_, ZORVEL::POSES)) {
    for (const DataContainer* entry : apps::childrenOf(*pose)) {
      if (const wchar_t* id = Fields::OptionalText(entry, FIELD_ID)) ids.insert(id);
    }
  }
  return ids;
}

void OfferRules::tellAssetsWithoutPage() {
  const auto known = [this] { return apps::idsOf(apps::elementsOf(character_, ZORVEL::CATEGORIES)); };
  const std::set<std::wstring> asked = askedForByPoses();
  for (const OfferedElement& element : offers_.GetAssetsWithoutPage()) {
    const std::wstring& id = element.refusal.concerned;
    if (element.refusal.why == WhyNot::CategoryUnnamed && asked.count(idOf(element.record)) > 0) continue;
    if (element.refusal.why == WhyNot::CategoryUnnamed) {
      survey_.findings.add(RuleId::AssetCategoryUnnamed, element.record, {});
    } else {
      survey_.findings.add(RuleId::AssetCategoryUnknown, element.record, {id, survey_.hintAt(id, known)});
    }
  }
}

void OfferRules::tellAssetsWithoutRow() {
  const auto own = [this](const DataContainer* record) {
    const DataContainer* standIn = character_.FindLocalAssetForGlobal(record);
    return standIn != nullptr && Data2::CheckAssetGlobal(record) ? standIn : record;
  };
  for (const auto& [record, poses] : withoutRow_) {
    const std::set<const DataContainer*> different(poses.begin(), poses.end());
    if (different.size() == visitedPoses_.size()) {
      survey_.findings.add(RuleId::AssetInNoPose, own(record), {});
      continue;
    }
    for (const DataContainer* pose : different) {
      survey_.findings.add(RuleId::AssetNotInPose, own(record), {idOf(pose)});
    }
  }
  for (const auto& [record, clothes] : excludedBy_) {
    const std::size_t count = clothes_.size();
    if (clothes.size() == count) survey_.findings.add(RuleId::AssetAlwaysExcluded, own(record), {});
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
