#pragma once

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <unordered_set>

#include "check/rules/Survey.h"
#include "core/FileStamps.h"
#include "model/PageOffers.h"

namespace check {

/// A clothing in a pose, as the page of the poses offers it.
struct WornPose {
  const ZORVEL::DataContainer* clothing;
  const ZORVEL::DataContainer* pose;
  /// Grey when it is shown and refused.
  bool isShown;
  ZORVEL::Refusal refusal;

  bool canBeBuilt() const { return isShown && refusal.why == ZORVEL::WhyNot::Nothing; }
};

/// What the window offers of one character: every clothing is chosen once, and every pose once in a clothing that can
/// be worn in it. That meets whatever can keep an element from being shown.
class OfferRules {
 public:
  OfferRules(Survey& survey, const ZORVEL::CharacterData& character)
      : survey_(survey), character_(character), offers_(character, stamps_) {}

  void run();
  /// All clothes in all poses that can be chosen, in the order of the window.
  const std::vector<WornPose>& worn() const { return worn_; }
  /// Whether a page shows the asset in the pose.
  bool isOffered(const ZORVEL::DataContainer* asset, const ZORVEL::DataContainer* pose) const {
    return offered_.count({asset, pose}) > 0;
  }

 private:
  using Records = std::vector<const ZORVEL::DataContainer*>;

  /// Ids of assets that entries of poses name, or seem to mean. An entry that names none may mean any.
  struct AskedFor {
    bool isAny = false;
    std::set<std::wstring> ids;
  };

  void lookAtLists();
  bool hasDroppedClothes() const;
  void lookAtStrip();
  void chooseClothes();
  void choose(const ZORVEL::DataContainer& clothing);
  void choosePoses();
  void notePoses(const ZORVEL::DataContainer& clothing, const ZORVEL::PageOffer& page);
  void takePoses(const ZORVEL::DataContainer& clothing, const ZORVEL::PageOffer& page);
  void takePage(const ZORVEL::PageOffer& page, bool isFirstOfClothing);
  void takeSkins(const ZORVEL::PageOffer& page);
  void takeStyles(const ZORVEL::PageOffer& page);
  void takeAssets(const ZORVEL::PageOffer& page);
  void noteWithoutRow(const ZORVEL::DataContainer& category);
  void takePicture(const ZORVEL::PageOffer& page, const ZORVEL::OfferedElement& element);
  void tellPictureMissing(RuleId rule, const ZORVEL::OfferedElement& element, EntryKind kind);

  void tellWorn();
  void tellPair(const WornPose& pair);
  AskedFor askedForByPoses() const;
  bool isAskedForByAPose(const std::wstring& id);
  void tellAssetsWithoutPage();
  void tellNeverOffered();
  void tellWithoutRow(const ZORVEL::DataContainer& asset);
  void tellAddresses();

  Survey& survey_;
  const ZORVEL::CharacterData& character_;
  ZORVEL::FileStamps stamps_;
  ZORVEL::PageOffers offers_;
  /// Each id once: another element with the same one is never chosen.
  Records clothes_;
  Records unavailable_;
  Records poses_;
  std::unordered_set<const ZORVEL::DataContainer*> choosablePoses_;
  /// Whose picture is noted already.
  std::unordered_set<const ZORVEL::DataContainer*> pictured_;
  std::vector<WornPose> worn_;
  const ZORVEL::DataContainer* pose_ = nullptr;
  std::set<const ZORVEL::DataContainer*> visitedPoses_;
  bool skinsAreTold_ = false;
  std::set<std::pair<const ZORVEL::DataContainer*, const ZORVEL::DataContainer*>> offered_;
  /// The poses in which there is no row for an asset.
  std::map<const ZORVEL::DataContainer*, std::set<const ZORVEL::DataContainer*>> withoutRow_;
  const ZORVEL::DataContainer* clothing_ = nullptr;
  std::optional<AskedFor> askedFor_;
};

}  // namespace check
