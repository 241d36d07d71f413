#include "check/report/TextReport.h"

#include <algorithm>
#include <set>
#include <tuple>

#include "check/report/FindingCounts.h"
#include "check/report/FindingPlace.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

/// More findings of one rule are folded to the first few.
constexpr std::size_t MOST_UNFOLDED = 10;
constexpr std::size_t SHOWN_OF_FOLDED = 3;

const char* const INDENT = "    ";

/// Of one rule and severity in one repository; at least one.
using Group = std::vector<const Finding*>;

bool isOneGroup(const Finding& one, const Finding& other) {
  return one.rule == other.rule && one.severity == other.severity;
}

/// The worst first, then by code; findings of a group keep their order.
std::vector<Group> groupsOf(const std::vector<Finding>& findings) {
  Group sorted;
  for (const Finding& finding : findings) sorted.push_back(&finding);
  std::stable_sort(sorted.begin(), sorted.end(), [](const Finding* one, const Finding* other) {
    return std::tie(one->severity, one->rule) < std::tie(other->severity, other->rule);
  });
  std::vector<Group> groups;
  for (const Finding* finding : sorted) {
    if (groups.empty() || !isOneGroup(*groups.back().front(), *finding)) groups.emplace_back();
    groups.back().push_back(finding);
  }
  return groups;
}

std::string counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

/// "character[anna]" of an element in it; empty for what is in none.
std::string characterOf(const std::string& element) {
  if (element.rfind("character[", 0) != 0) return {};
  return element.substr(0, element.find("]/"));
}

std::string inCharacters(Group::const_iterator begin, Group::const_iterator end) {
  std::set<std::string> characters;
  std::for_each(begin, end, [&](const Finding* finding) { characters.insert(characterOf(finding->element)); });
  characters.erase("");
  return characters.empty() ? "" : ", in " + counted(characters.size(), "character");
}

class Writer {
 public:
  explicit Writer(const TextReportOptions& options) : options_(options) {}

  void add(const JudgedRepository& repository) {
    if (!text_.empty()) text_ += '\n';
    for (const Group& group : groupsOf(repository.result.findings)) add(repository.result, group);
    text_ += verdictOf(repository) + '\n';
  }
  void addTotal(const std::vector<JudgedRepository>& repositories) {
    FindingCounts total;
    for (const JudgedRepository& repository : repositories) {
      const FindingCounts counts = countsOf(repository.result);
      total.errors += counts.errors;
      total.warnings += counts.warnings;
      total.hints += counts.hints;
    }
    text_ += '\n' + std::to_string(repositories.size()) + " repositories: " + summaryOf(total) + '\n';
  }
  const std::string& text() const { return text_; }

 private:
  void add(const CheckResult& result, const Group& group) {
    const bool isFolded = group.size() > MOST_UNFOLDED && !options_.showsAll;
    const auto end = isFolded ? group.begin() + SHOWN_OF_FOLDED : group.end();
    std::for_each(group.begin(), end, [&](const Finding* finding) { add(result, *finding); });
    if (isFolded) addFold(end, group.end());
    const RuleId rule = group.front()->rule;
    if (explained_.insert(rule).second) text_ += INDENT + ("Remedy: " + std::string(ruleOf(rule).remedy)) + '\n';
    text_ += '\n';
  }

  void add(const CheckResult& result, const Finding& finding) {
    const std::string severity = nameOf(finding.severity);
    text_ += colored("2", placeOf(result, finding) + ':') + ' ' + colored(bold(finding.severity), severity + ':') +
             ' ' + host::printable(finding.message) + ' ' +
             colored(color(finding.severity), '[' + std::string(ruleOf(finding.rule).code) + ']') + '\n';
    if (!finding.element.empty()) text_ += INDENT + host::printable(finding.element) + '\n';
  }

  void addFold(Group::const_iterator begin, Group::const_iterator end) {
    text_ += INDENT + ("\u2026 and " + std::to_string(end - begin)) + " more like these" + inCharacters(begin, end) +
             " (--all shows them)\n";
  }

  std::string verdictOf(const JudgedRepository& repository) const {
    const CheckResult& result = repository.result;
    const std::string summary = summaryOf(countsOf(result));
    if (!result.isReadable) return descriptionOf(result) + " could not be checked: " + summary;
    std::string verdict = descriptionOf(result) + " of " + counted(count(result.characterCount), "character") + ", " +
                          counted(count(result.elementCount), "element") + ": " + summary;
    if (repository.ignoredCount > 0) verdict += ", " + counted(count(repository.ignoredCount), "finding") + " ignored";
    return verdict;
  }

  std::string summaryOf(const FindingCounts& counts) const {
    std::string summary;
    const auto add = [&](int number, Severity severity) {
      if (number == 0) return;
      summary += (summary.empty() ? "" : ", ") + colored(bold(severity), counted(count(number), nameOf(severity)));
    };
    add(counts.errors, Severity::Error);
    add(counts.warnings, Severity::Warning);
    add(counts.hints, Severity::Hint);
    return summary.empty() ? colored("32", "clean") : summary;
  }

  static std::size_t count(int number) { return static_cast<std::size_t>(number); }

  static const char* color(Severity severity) {
    return severity == Severity::Error ? "31" : severity == Severity::Warning ? "33" : "36";
  }
  static std::string bold(Severity severity) { return std::string("1;") + color(severity); }

  std::string colored(const std::string& code, const std::string& text) const {
    return options_.isColored ? "\x1b[" + code + 'm' + text + "\x1b[0m" : text;
  }

  TextReportOptions options_;
  std::set<RuleId> explained_;
  std::string text_;
};

}  // namespace

std::string textReport(const std::vector<JudgedRepository>& repositories, const TextReportOptions& options) {
  Writer writer(options);
  for (const JudgedRepository& repository : repositories) writer.add(repository);
  if (repositories.size() > 1) writer.addTotal(repositories);
  return writer.text();
}

}  // namespace check
