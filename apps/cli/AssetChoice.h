#pragma once

#include <string>
#include <vector>

#include "apps/cli/Choice.h"
#include "model/CharacterData.h"

namespace cli {

/// Adds assets to the selection by the rules of the window, for a selection that has character, clothing and pose.
class AssetChoice {
 public:
  /// Both must outlive this.
  AssetChoice(const ZORVEL::CharacterData& character, ChoiceResult& result) : character_(character), result_(result) {}

  /// ID or ID:MATERIAL. Without a material the first one is taken, where the asset has any. Nothing is selected yet.
  void wish(const std::string& wanted);
  /// Selects what was wished for; where nothing was and `defaults` says so, what the clothing selects and the first
  /// asset of a required category.
  void select(bool defaults);

 private:
  using Record = ZORVEL::DataContainer;

  Record* find(const std::string& id) const;
  Record* findMaterial(const Record& record, const std::string& id);
  /// What stands for an asset in the scene: for one of type "global" the shared record, where there is one.
  static Record* recordOf(Record& asset);
  bool isOffered(const Record& asset, const Record* record);
  void selectDefaults(const Record& category);
  void selectWish(std::size_t index);

  struct Wish {
    std::string id;
    const Record* category;
    const Record* chosen;
  };

  const ZORVEL::CharacterData& character_;
  ChoiceResult& result_;
  std::vector<Wish> wishes_;
};

}  // namespace cli
