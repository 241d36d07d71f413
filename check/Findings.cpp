#include "check/Findings.h"

#include <algorithm>

#include "host/files/Paths.h"
#include "host/files/PrintableText.h"

namespace check {

using ZORVEL::XmlElement;

namespace {

const char* const DESCRIPTION = "zorvel.xml";
/// Bytes of what a finding quotes; names and paths are far shorter.
constexpr std::size_t LONGEST_QUOTE = 1000;
/// Nobody reads more findings of one rule; how many more there are is told.
constexpr int MOST_OF_A_RULE = 10'000;
/// Of all findings together; reports take as much again and more.
constexpr std::size_t MOST_MEMORY = std::size_t{24} << 20U;

bool goesOn(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80; }

std::string shortened(std::string text) {
  if (text.size() <= LONGEST_QUOTE) return text;
  std::size_t end = LONGEST_QUOTE;
  while (end > 0 && goesOn(text[end])) --end;
  return text.erase(end) + "\u2026";
}

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

/// Whether other rules want to know if this was told of an element.
bool isAskedFor(RuleId rule) {
  switch (rule) {
    case RuleId::AssetIdDuplicate:
    case RuleId::FolderEmpty:
    case RuleId::FolderOutside:
    case RuleId::GlobalReferencedTwice:
    case RuleId::GlobalWithoutType:
      return true;
    default:
      return false;
  }
}

std::size_t sizeOf(const Finding& finding) {
  return sizeof(finding) + finding.file.size() + finding.element.size() + finding.subject.size() +
         finding.message.size();
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

}  // namespace

Value::Value(std::string text) : text_(shortened(std::move(text))) {}
Value::Value(const std::wstring& text) : Value(host::toUtf8(text)) {}

bool Findings::InOrder::operator()(const Finding& left, const Finding& right) const {
  const auto key = [](const Finding& one) {
    return std::tie(one.file, one.line, one.column, one.rule, one.message, one.element);
  };
  return key(left) < key(right);
}

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
  if (element != nullptr && isAskedFor(rule)) told_.emplace(rule, element);
  if (isFull(rule)) return;
  insert(at(rule, element), values, element);
}

void Findings::addMisspelt(RuleId rule, const XmlElement& element, const std::wstring& meant,
                           std::vector<Value> values) {
  if (isFull(rule)) return;
  if (++counts_[rule].misspellings > MOST_OF_A_RULE) return insert(at(rule, &element), values);
  Misspelling misspelling = {host::toUtf8(meant), values.front().text(), at(rule, &element)};
  fillIn(misspelling.finding, values);
  memory_ += sizeOf(misspelling.finding);
  misspellings_[&element].push_back(std::move(misspelling));
}

/// The sentence says why the attribute is missing, and nothing else does.
void Findings::takeMisspelling(Finding& finding, const XmlElement* element) {
  const auto known = misspellings_.find(element);
  if (known == misspellings_.end()) return;
  for (Misspelling& one : known->second) {
    if (one.meant != missingAttribute(finding)) continue;
    one.isTold = true;
    finding.message += host::printable("; \"" + one.attribute + "\" is written \"" + one.meant + '"');
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
  if (!isFull(rule)) insert(std::move(finding), values);
}

void Findings::addToFile(RuleId rule, const std::string& file, std::vector<Value> values) {
  Finding finding;
  finding.rule = rule;
  finding.file = file;
  if (!isFull(rule)) insert(std::move(finding), values);
}

bool Findings::has(RuleId rule, const ZORVEL::DataContainer* record) const {
  const XmlElement* element = description_.elementOf(record);
  return element != nullptr && told_.count({rule, element}) > 0;
}

bool Findings::hasAny(std::initializer_list<RuleId> rules) const {
  return std::any_of(rules.begin(), rules.end(), [this](RuleId rule) { return counts_.count(rule) > 0; });
}

bool Findings::hasOtherThanHints() const {
  return std::any_of(counts_.begin(), counts_.end(), [](const auto& entry) {
    return ruleOf(entry.first).severity != Severity::Hint || entry.first == RuleId::LibraryNotChecked;
  });
}

void Findings::fillIn(Finding& finding, const std::vector<Value>& values) {
  const Rule& rule = ruleOf(finding.rule);
  finding.severity = rule.severity;
  finding.file = host::printable(shortened(std::move(finding.file)));
  finding.element = host::printable(shortened(std::move(finding.element)));
  if (!values.empty()) finding.subject = host::printable(values.front().text());
  finding.message = host::printable(filledIn(rule.sentence, values));
}

void Findings::insert(Finding finding, const std::vector<Value>& values, const XmlElement* element) {
  fillIn(finding, values);
  takeMisspelling(finding, element);
  keep(std::move(finding));
}

bool Findings::isFull(RuleId rule) {
  Counts& counts = counts_[rule];
  const bool isFull = counts.taken >= MOST_OF_A_RULE || (counts.taken > 0 && memory_ > MOST_MEMORY);
  if (isFull) ++counts.leftOut;
  return isFull;
}

void Findings::keep(Finding finding) {
  Counts& counts = counts_[finding.rule];
  const auto [kept, isNew] = findings_.insert(std::move(finding));
  if (!isNew) return;
  ++counts.taken;
  memory_ += sizeOf(*kept);
}

void Findings::tellLeftOut(RuleId rule, int count) {
  if (count == 0) return;
  Finding finding;
  finding.rule = rule;
  finding.severity = ruleOf(rule).severity;
  finding.file = DESCRIPTION;
  finding.subject = std::to_string(count);
  finding.message = finding.subject + " more findings of this rule are left out";
  findings_.insert(std::move(finding));
}

std::vector<Finding> Findings::takeAll() {
  for (auto& [element, misspellings] : misspellings_) {
    for (Misspelling& one : misspellings) {
      if (!one.isTold) keep(std::move(one.finding));
    }
  }
  misspellings_.clear();
  for (const auto& [rule, counts] : counts_) tellLeftOut(rule, counts.leftOut);
  counts_.clear();
  std::vector<Finding> all(findings_.begin(), findings_.end());
  findings_.clear();
  return all;
}

}  // namespace check
