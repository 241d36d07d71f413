#pragma once

#include "check/explain/Outcome.h"
#include "check/explain/Steps.h"
#include "check/rules/MaterialLibraryIndex.h"
#include "check/rules/Survey.h"
#include "check/rules/WearTables.h"

namespace check {

/// The steps of a character and of what it wears: clothes, styles, poses, skins.
class WearerSteps {
 public:
  /// All must outlive this.
  WearerSteps(const Survey& survey, MaterialLibraryIndex& libraries, const std::vector<Finding>& findings,
              const ZORVEL::CharacterData& character, Steps& steps);

  Outcome addCharacter();
  Outcome addClothing(const ZORVEL::DataContainer& clothing);
  Outcome addStyle(const ZORVEL::DataContainer& clothing, const ZORVEL::DataContainer& style);
  Outcome addSkin(const ZORVEL::DataContainer& skin);
  Outcome addPose(const ZORVEL::DataContainer& pose);

 private:
  using Cells = std::vector<std::pair<std::string, const WearCell*>>;

  /// Of a clothing in the poses.
  Cells rowOf(const ZORVEL::DataContainer& clothing) const;
  Cells columnOf(const ZORVEL::DataContainer& pose) const;
  /// Answers how many build.
  std::size_t addCells(const Cells& cells, const char* topic, const char* noun);
  void addStrip(const ZORVEL::DataContainer& clothing);
  void addBody(const ZORVEL::DataContainer& pose);
  void addMandatory(const ZORVEL::DataContainer& pose);
  void addPicture(const ZORVEL::DataContainer& record, const std::wstring& path);
  bool canBeChosen(const ZORVEL::DataContainer& record) const;

  const Survey& survey_;
  MaterialLibraryIndex& libraries_;
  FindingIndex findings_;
  const ZORVEL::CharacterData& character_;
  Steps& steps_;
  WearTable table_;
};

}  // namespace check
