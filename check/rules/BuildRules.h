#pragma once

#include "check/rules/OfferRules.h"
#include "check/rules/Survey.h"
#include "model/PiecePlans.h"

namespace check {

/// What each part of a character would be built from, as the builder plans it.
class BuildRules {
 public:
  BuildRules(Survey& survey, const ZORVEL::CharacterData& character, const OfferRules& offers);

  void run();

 private:
  void lookAtPoses();
  void lookAtMandatory(const ZORVEL::DataContainer& pose, const ZORVEL::DataContainer& entry);
  void lookAtMandatoryAsset(const ZORVEL::DataContainer& pose, const ZORVEL::DataContainer& entry,
                            const ZORVEL::PiecePlan& plan);
  void lookAtSkins();
  void lookAtClothes();
  void lookAtAssets();
  void lookAtAsset(const ZORVEL::DataContainer& asset, ZORVEL::ElementKind kind);
  void lookAtAssetInPose(const ZORVEL::DataContainer& asset, const ZORVEL::DataContainer& pose);
  void lookAtAssetMaterials(const ZORVEL::DataContainer& asset, ZORVEL::ElementKind kind);
  std::string whyNotOffered(const ZORVEL::DataContainer& asset) const;

  /// Whether the mesh is there and, as far as can be said without looking into it, can be read.
  void lookAtMesh(RuleId missing, const ZORVEL::PiecePlan& plan, const ZORVEL::DataContainer* record,
                  std::vector<Value> more = {});
  void lookAtMaterial(const ZORVEL::PiecePlan& plan, EntryKind kind);

  Survey& survey_;
  const ZORVEL::CharacterData& character_;
  const OfferRules& offers_;
  ZORVEL::PiecePlans plans_;
  std::vector<ZORVEL::DataContainer*> poses_;
};

}  // namespace check
