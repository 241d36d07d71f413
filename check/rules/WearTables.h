#pragma once

#include <map>
#include <utility>

#include "check/FindingIndex.h"
#include "check/rules/Survey.h"
#include "model/PiecePlan.h"

namespace check {

/// The tables of what can be worn, from what the rules have noted and found: every cell that does not build says so in
/// the words of a finding, or of the page that refuses it.
class WearTables {
 public:
  /// Both must outlive this; the repository is in the store.
  WearTables(const Survey& survey, const std::vector<Finding>& findings);

  /// In the order of the description; those that were left out come last.
  std::vector<WearTable> make() const;
  WearTable tableOf(const ZORVEL::CharacterData& character) const;

 private:
  using Record = ZORVEL::DataContainer;

  WearTable leftOut(const ZORVEL::XmlElement& character, const std::string& why) const;
  WearRow rowOf(const ZORVEL::CharacterData& character, const Record& clothing) const;
  void addDropped(const ZORVEL::CharacterData& character, WearTable& table) const;
  WearCell cellOf(const ZORVEL::CharacterData& character, const Record& clothing, const Record& pose) const;
  WearCell whyUnchoosable(const ZORVEL::CharacterData& character, const Record& clothing, const Record& pose) const;
  /// When none of these can be chosen, why the first cannot; else null.
  const Finding* whyNone(const std::vector<ZORVEL::DataContainer*>& choices) const;
  WearCell whyNotOffered(const Record& clothing, const Record& pose) const;
  WearCell whyIncomplete(const ZORVEL::CharacterData& character, const Record& clothing, const Record& pose) const;
  /// `meshless` is the rule about its mesh.
  WearCell whyNotBuilt(const ZORVEL::PiecePlan& plan, const Record& record, RuleId meshless) const;
  /// Of the first finding about the element that is no hint; empty when there is none.
  std::string codeAt(const ZORVEL::XmlElement* element) const;
  /// The refusal with the code of the finding about it.
  WearCell refused(const PoseOffer& offer) const;

  const Survey& survey_;
  FindingIndex findings_;
  std::map<std::pair<const Record*, const Record*>, const PoseOffer*> offers_;
};

}  // namespace check
