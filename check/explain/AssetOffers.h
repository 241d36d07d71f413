#pragma once

#include <string>
#include <vector>

#include "check/rules/Survey.h"
#include "core/FileStamps.h"
#include "model/PageOffers.h"

namespace check {

/// What the pages of a character show in each pose, asked in a clothing that can be worn in it.
class AssetOffers {
 public:
  /// All must outlive this. Selects in the store, and nothing stays selected.
  AssetOffers(const Survey& survey, const ZORVEL::CharacterData& character);

  struct Answer {
    const ZORVEL::DataContainer* pose;
    /// Empty when it is shown.
    std::string whyNot;
  };
  /// For every pose that can be chosen at all. `asset` is one of the character's own; a null material means any.
  std::vector<Answer> ofAsset(const ZORVEL::DataContainer& asset, const ZORVEL::DataContainer* material) const;
  /// Of one of the skins.
  std::string whyNotSkin(const ZORVEL::DataContainer& skin) const;

 private:
  /// In a clothing that does not exclude the asset, if there is one; null when none can be worn in the pose.
  const ZORVEL::DataContainer* clothingFor(const ZORVEL::DataContainer& pose, const ZORVEL::DataContainer* asset) const;
  void select(const ZORVEL::DataContainer& clothing, const ZORVEL::DataContainer& pose) const;
  std::string whyNotShown(const ZORVEL::DataContainer& asset, const ZORVEL::DataContainer* material) const;

  const Survey& survey_;
  const ZORVEL::CharacterData& character_;
  mutable ZORVEL::FileStamps stamps_;
  std::vector<const PoseOffer*> worn_;
};

}  // namespace check
