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

/// What a finding says that the element lacks; empty for one that says something else.
std::string missingAttribute(const Finding& finding) {
  switch (finding.rule) {
    case RuleId::ClothingPreviewMissing:
    case RuleId::IdMissing:
    case RuleId::ChoiceIdMissing:
    case RuleId::CategoryWithoutId:
    case RuleId::ExcludeWithoutId:
    case RuleId::MandatoryWithoutId:
      return "id";
    case RuleId::ListWithoutName:
    case RuleId::ElementWithoutName:
    case RuleId::PoseWithoutName:
    case RuleId::ClothingWithoutName:
      return "name";
    case RuleId::CharacterFolderUnnamed:
    case RuleId::FolderUnnamed:
    case RuleId::ClothingFolderUnnamed:
      return "folder";
    case RuleId::PreviewUnnamed:
      return "preview";
    case RuleId::MaterialUnnamed:
      return "material";
    case RuleId::AssetCategoryUnnamed:
      return "category";
    case RuleId::GlobalUnnamed:
      return "globalID";
    case RuleId::GlobalWithoutType:
      return "type";
    case RuleId::SelectWithoutAsset:
      return "asset_id";
    case RuleId::SelectWithoutMaterial:
      return "material_id";
    case RuleId::MatrixRowIncomplete:
    case RuleId::AssetUnbuildable:
      return finding.subject;
    default:
      return "";
  }
}

auto sortKey(const Finding& finding) {
  return std::tie(finding.file, finding.line, finding.column, finding.rule, finding.message);
}

}  // namespace

Value::Value(const std::wstring& text) : text_(host::toUtf8(text)) {}

Finding Findings::at(RuleId rule, const XmlElement* element) const {
  Finding finding;
  finding.rule = rule;
  finding.file = DESCRIPTION;
  if (element == nullptr) return finding;
  finding.line = element->line;
  finding.column = element->column;
  finding.element = description_.pathOf(*element);
  return finding;
}

void Findings::add(RuleId rule, const XmlElement* element, std::vector<Value> values) {
  Finding finding = at(rule, element);
  fillIn(finding, values);
  if (element != nullptr) told_.emplace(rule, element);
  takeMisspelling(finding, element);
  findings_.push_back(std::move(finding));
}

void Findings::addMisspelt(RuleId rule, const XmlElement& element, const std::wstring& meant,
                           std::vector<Value> values) {
  Misspelling misspelling = {host::toUtf8(meant), values.front().text(), at(rule, &element)};
  fillIn(misspelling.finding, values);
  misspellings_[&element].push_back(std::move(misspelling));
}

/// The sentence says why the attribute is missing, and nothing else does.
void Findings::takeMisspelling(Finding& finding, const XmlElement* element) {
  const auto known = misspellings_.find(element);
  if (known == misspellings_.end()) return;
  for (Misspelling& one : known->second) {
    if (one.meant != missingAttribute(finding)) continue;
    one.isTold = true;
    finding.message += printable("; \"" + one.attribute + "\" is written \"" + one.meant + '"');
  }
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
  return std::any_of(findings_.begin(), findings_.end(),
                     [](const Finding& finding) {
                       return finding.severity != Severity::Hint || finding.rule == RuleId::LibraryNotChecked;
                     }) ||
         !misspellings_.empty();
}

void Findings::fillIn(Finding& finding, const std::vector<Value>& values) {
  const Rule& rule = ruleOf(finding.rule);
  finding.severity = rule.severity;
  finding.file = printable(finding.file);
  finding.element = printable(finding.element);
  if (!values.empty()) finding.subject = printable(values.front().text());
  finding.message = printable(filledIn(rule.sentence, values));
}

void Findings::insert(Finding finding, const std::vector<Value>& values) {
  fillIn(finding, values);
  findings_.push_back(std::move(finding));
}

std::vector<Finding> Findings::takeAll() {
  std::vector<Finding> all = std::move(findings_);
  findings_.clear();
  for (auto& [element, misspellings] : misspellings_) {
    for (Misspelling& one : misspellings) {
      if (!one.isTold) all.push_back(std::move(one.finding));
    }
  }
  misspellings_.clear();
  std::stable_sort(all.begin(), all.end(),
                   [](const Finding& left, const Finding& right) { return sortKey(left) < sortKey(right); });
  const auto isSame = [](const Finding& left, const Finding& right) {
    return sortKey(left) == sortKey(right) && left.element == right.element;
  };
  all.erase(std::unique(all.begin(), all.end(), isSame), all.end());
  return all;
}

}  // namespace check
