#include "check/Findings.h"

#include <algorithm>

#include "check/PrintableText.h"
#include "host/files/Paths.h"

namespace check {

using ZORVEL::XmlElement;

namespace {

const char* const DESCRIPTION = "zorvel.xml";

/// One value for each {placeholder}, in their order.
std::string filledIn(const std::string& sentence, const std::vector<Value>& values) {
  std::string text;
  auto value = values.begin();
  for (std::size_t at = 0; at < sentence.size();) {
    const std::size_t open = sentence.find('{', at);
    text += sentence.substr(at, open - at);
    if (open == std::string::npos) break;
    if (value != values.end()) text += (value++)->text();
    at = sentence.find('}', open) + 1;
  }
  return text;
}

auto sortKey(const Finding& finding) {
  return std::tie(finding.file, finding.line, finding.column, finding.rule, finding.message);
}

}  // namespace

Value::Value(const std::wstring& text) : text_(host::toUtf8(text)) {}

void Findings::add(RuleId rule, const XmlElement* element, std::vector<Value> values) {
  Finding finding;
  finding.rule = rule;
  finding.file = DESCRIPTION;
  if (element != nullptr) {
    finding.line = element->line;
    finding.column = element->column;
    finding.element = description_.pathOf(*element);
    told_.emplace(rule, element);
  }
  insert(std::move(finding), values);
}

void Findings::add(RuleId rule, const ZORVEL::DataContainer* record, std::vector<Value> values) {
  add(rule, description_.elementOf(record), std::move(values));
}

void Findings::addAt(RuleId rule, int line, int column, std::vector<Value> values) {
  Finding finding;
  finding.rule = rule;
  finding.file = DESCRIPTION;
  finding.line = line;
  finding.column = column;
  insert(std::move(finding), values);
}

void Findings::addToFile(RuleId rule, const std::string& file, std::vector<Value> values) {
  Finding finding;
  finding.rule = rule;
  finding.file = file;
  insert(std::move(finding), values);
}

bool Findings::has(RuleId rule, const ZORVEL::DataContainer* record) const {
  const XmlElement* element = description_.elementOf(record);
  return element != nullptr && told_.count({rule, element}) > 0;
}

bool Findings::hasAny(std::initializer_list<RuleId> rules) const {
  return std::any_of(findings_.begin(), findings_.end(), [rules](const Finding& finding) {
    return std::find(rules.begin(), rules.end(), finding.rule) != rules.end();
  });
}

bool Findings::hasOtherThanHints() const {
  return std::any_of(findings_.begin(), findings_.end(), [](const Finding& finding) {
    return finding.severity != Severity::Hint || finding.rule == RuleId::LibraryNotChecked;
  });
}

void Findings::insert(Finding finding, const std::vector<Value>& values) {
  const Rule& rule = ruleOf(finding.rule);
  finding.severity = rule.severity;
  finding.file = printable(finding.file);
  finding.element = printable(finding.element);
  if (!values.empty()) finding.subject = printable(values.front().text());
  finding.message = printable(filledIn(rule.sentence, values));
  findings_.push_back(std::move(finding));
}

std::vector<Finding> Findings::takeAll() {
  std::vector<Finding> all = std::move(findings_);
  findings_.clear();
  std::stable_sort(all.begin(), all.end(),
                   [](const Finding& left, const Finding& right) { return sortKey(left) < sortKey(right); });
  const auto isSame = [](const Finding& left, const Finding& right) {
    return sortKey(left) == sortKey(right) && left.element == right.element;
  };
  all.erase(std::unique(all.begin(), all.end(), isSame), all.end());
  return all;
}

}  // namespace check
