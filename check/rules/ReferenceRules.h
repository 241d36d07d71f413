#pragma once

#include "check/rules/Survey.h"

namespace check {

/// What refers to assets, categories and shared assets: excludes, selects, stand-ins.
class ReferenceRules {
 public:
  explicit ReferenceRules(Survey& survey) : survey_(survey) {}
  void run();

 private:
  void lookAtCharacter(const ZORVEL::CharacterData& character);
  void lookAtStandIns(const ZORVEL::CharacterData& character);
  void lookAtOwnFields(const ZORVEL::DataContainer& asset, const ZORVEL::DataContainer& shared);
  void lookAtExcludes(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& clothing);
  void lookAtSelects(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& clothing);
  void lookAtSelect(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& clothing,
                    const ZORVEL::DataContainer& select);
  void lookAtMaterial(const ZORVEL::DataContainer& select, const ZORVEL::DataContainer& asset);
  void lookAtCategories(const ZORVEL::CharacterData& character, const ZORVEL::DataContainer& clothing);
  void lookAtClothingOrder(const ZORVEL::CharacterData& character);
  void lookAtShared();

  Survey& survey_;
};

}  // namespace check
