#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "check/Finding.h"
#include "repository/XmlDocument.h"

namespace check {

/// Findings by the element that they are about.
class FindingIndex {
 public:
  /// They must outlive this.
  explicit FindingIndex(const std::vector<Finding>& findings);

  // A null element has no findings; null when there is no such finding.
  const Finding* find(const ZORVEL::XmlElement* element, RuleId rule) const;
  /// The subject as the rule's first value, not yet printable.
  const Finding* find(const ZORVEL::XmlElement* element, RuleId rule, const std::string& subject) const;
  /// The first of these rules that something was found of.
  const Finding* findAny(const ZORVEL::XmlElement* element, std::initializer_list<RuleId> rules) const;
  const std::vector<const Finding*>& at(const ZORVEL::XmlElement* element) const;

 private:
  using Place = std::pair<int, int>;

  std::map<Place, std::vector<const Finding*>> findings_;
};

}  // namespace check
