#include "check/FindingIndex.h"

#include <algorithm>

#include "check/Findings.h"
#include "host/files/PrintableText.h"

namespace check {

FindingIndex::FindingIndex(const std::vector<Finding>& findings) {
  for (const Finding& finding : findings) {
    if (!finding.element.empty()) findings_[{finding.line, finding.column}].push_back(&finding);
  }
}

const Finding* FindingIndex::find(const ZORVEL::XmlElement* element, RuleId rule) const {
  const std::vector<const Finding*>& here = at(element);
  const auto found = std::find_if(here.begin(), here.end(), [rule](const Finding* one) { return one->rule == rule; });
  return found != here.end() ? *found : nullptr;
}

const Finding* FindingIndex::find(const ZORVEL::XmlElement* element, RuleId rule, const std::string& subject) const {
  // As it was cut when it was taken in.
  const std::string wanted = host::printable(Value(subject).text());
  const std::vector<const Finding*>& here = at(element);
  const auto found = std::find_if(here.begin(), here.end(),
                                  [&](const Finding* one) { return one->rule == rule && one->subject == wanted; });
  return found != here.end() ? *found : nullptr;
}

const Finding* FindingIndex::findAny(const ZORVEL::XmlElement* element, std::initializer_list<RuleId> rules) const {
  for (const RuleId rule : rules) {
    if (const Finding* finding = find(element, rule)) return finding;
  }
  return nullptr;
}

const std::vector<const Finding*>& FindingIndex::at(const ZORVEL::XmlElement* element) const {
  static const std::vector<const Finding*> NONE;
  const auto found = element == nullptr ? findings_.end() : findings_.find({element->line, element->column});
  return found != findings_.end() ? found->second : NONE;
}

}  // namespace check
