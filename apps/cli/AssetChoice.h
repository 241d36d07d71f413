#pragma once

#include <set>
#include <string>
#include <vector>

#include "apps/cli/Choice.h"
#include "model/CharacterData.h"
#include "model/PageOffer.h"

namespace cli {

/// Assets that are asked for, besides those that the pages begin with.
class AssetChoice {
 public:
  /// Both must outlive this.
  AssetChoice(const ZORVEL::CharacterData& character, ChoiceResult& result) : character_(character), result_(result) {}

  /// Each ID or ID:MATERIAL; without a material the first that is offered is taken. False when there is no such asset
  /// or material. Nothing is chosen yet.
  bool wish(const std::vector<std::string>& wanted);
  /// Finds what is wished for on the page. Where nothing is, and `defaults` says so, the page begins as in the window.
  void visit(const ZORVEL::PageOffer& page, bool defaults);
  /// Of an asset that is not shown, so that it can be said why.
  void lookAtHidden(const ZORVEL::OfferedElement& element);
  /// Chooses what was found, after the last page, and says what was not and what got lost.
  void select();

 private:
  struct Wish {
    std::string id;
    const ZORVEL::DataContainer* record;
    /// Null for any.
    const ZORVEL::DataContainer* material;
    const ZORVEL::DataContainer* category = nullptr;
    /// 0 until it is found on a page.
    int unique = 0;
    ZORVEL::Refusal refusal;
  };

  void wishFor(const std::string& wanted);
  const ZORVEL::DataContainer* find(const std::string& id) const;
  static bool fits(const Wish& wish, const ZORVEL::OfferedElement& element);
  bool visit(Wish& wish, const ZORVEL::PageOffer& page) const;
  void click(const Wish& wish);
  void reportLost(const ZORVEL::OfferedElement& element);

  const ZORVEL::CharacterData& character_;
  ChoiceResult& result_;
  std::vector<Wish> wishes_;
  std::set<const ZORVEL::DataContainer*> clickedCategories_;
  /// What pages began with.
  std::vector<ZORVEL::OfferedElement> begun_;
};

}  // namespace cli
