#pragma once

#include "check/explain/AssetOffers.h"
#include "check/explain/Outcome.h"
#include "check/explain/Steps.h"
#include "check/rules/MaterialLibraryIndex.h"
#include "model/PiecePlan.h"

namespace check {

/// The steps of assets, of their materials and of their categories.
class AssetSteps {
 public:
  /// All must outlive this.
  AssetSteps(const Survey& survey, MaterialLibraryIndex& libraries, Steps& steps)
      : survey_(survey), libraries_(libraries), steps_(steps) {}

  /// A null material stands for all of the asset's.
  Outcome addAsset(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& asset,
                   const ZORVEL::DataContainer* material);
  /// One that characters share.
  Outcome addShared(const ZORVEL::DataContainer& shared, const ZORVEL::DataContainer* material);
  Outcome addCategory(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& category);

 private:
  using Answers = std::vector<AssetOffers::Answer>;

  void addType(const ZORVEL::DataContainer& asset);
  /// Answers whether there is a page that may list it.
  bool addCategoryOf(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& asset, bool isAskedFor);
  void addClothes(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& asset);
  /// Answers whether there are any.
  bool addAskingPoses(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& asset);
  /// Answers how many of the poses offer it.
  std::size_t addPoses(const Answers& answers);
  /// Answers why nothing is built of it; empty when something is.
  std::string addMeshes(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& record,
                        const Answers& answers);
  std::string whyNotBuilt(const ZORVEL::PiecePlan& plan) const;
  void addMaterials(const ZORVEL::DataContainer& record, const ZORVEL::DataContainer* material);

  const Survey& survey_;
  MaterialLibraryIndex& libraries_;
  Steps& steps_;
};

}  // namespace check
