#include "check/report/JunitReport.h"

#include <algorithm>

#include "check/report/FindingPlace.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

/// For texts and attributes. What is printable has two more that XML does not allow.
std::string xmlText(const std::string& text) {
  static const std::vector<std::pair<std::string, std::string>> REPLACED = {
      {"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\"", "&quot;"}, {"\uFFFE", "\\ufffe"}, {"\uFFFF", "\\uffff"}};
  std::string result = host::printable(text);
  for (const auto& [from, to] : REPLACED) {
    for (std::size_t at = result.find(from); at != std::string::npos; at = result.find(from, at + to.size())) {
      result.replace(at, from.size(), to);
    }
  }
  return result;
}

std::string attribute(const char* name, const std::string& value) {
  return std::string(" ") + name + "=\"" + xmlText(value) + '"';
}

std::string lineOf(const CheckResult& result, const Finding& finding) {
  const std::string element = finding.element.empty() ? "" : " (" + finding.element + ")";
  return placeOf(result, finding) + ": " + nameOf(finding.severity) + ": " + finding.message + element;
}

/// What a case says of the rule's findings, by whether they fail it.
struct Case {
  std::vector<const Finding*> failures;
  std::vector<const Finding*> hints;
};

Case caseOf(const CheckResult& result, RuleId rule) {
  Case found;
  for (const Finding& finding : result.findings) {
    if (finding.rule != rule) continue;
    (finding.severity == Severity::Hint ? found.hints : found.failures).push_back(&finding);
  }
  return found;
}

std::string linesOf(const CheckResult& result, const std::vector<const Finding*>& findings) {
  std::string lines;
  for (const Finding* finding : findings) lines += xmlText(lineOf(result, *finding)) + '\n';
  return lines;
}

std::string failureOf(const CheckResult& result, const std::vector<const Finding*>& failures) {
  const std::size_t others = failures.size() - 1;
  const std::string more = others == 0 ? "" : " (and " + std::to_string(others) + " more)";
  const Finding& first = *failures.front();
  return "      <failure" + attribute("type", nameOf(first.severity)) + attribute("message", first.message + more) +
         ">" + linesOf(result, failures) + xmlText("Remedy: " + std::string(ruleOf(first.rule).remedy)) +
         "</failure>\n";
}

std::string contentOf(const CheckResult& result, const Case& found) {
  if (found.failures.empty() && found.hints.empty()) {
    return result.isReadable ? "" : "      <skipped message=\"the repository cannot be read\"/>\n";
  }
  std::string content;
  if (!found.failures.empty()) content += failureOf(result, found.failures);
  if (!found.hints.empty()) {
    content += "      <system-out>" + linesOf(result, found.hints) + "</system-out>\n";
  }
  return content;
}

struct Suite {
  int tests = 0;
  int failures = 0;
  int skipped = 0;
  std::string cases;

  void add(const CheckResult& result, RuleId id) {
    const Rule& rule = ruleOf(id);
    const Case found = caseOf(result, id);
    const std::string content = contentOf(result, found);
    ++tests;
    if (!found.failures.empty()) ++failures;
    if (!result.isReadable && found.failures.empty() && found.hints.empty()) ++skipped;
    cases += "    <testcase" + attribute("classname", result.root) +
             attribute("name", std::string(rule.code) + ' ' + rule.name) +
             (content.empty() ? "/>\n" : ">\n" + content + "    </testcase>\n");
  }

  std::string counts() const {
    return attribute("tests", std::to_string(tests)) + attribute("failures", std::to_string(failures)) +
           attribute("errors", "0") + attribute("skipped", std::to_string(skipped));
  }
};

bool isFound(const CheckResult& result, RuleId rule) {
  return std::any_of(result.findings.begin(), result.findings.end(),
                     [rule](const Finding& finding) { return finding.rule == rule; });
}

Suite suiteOf(const JudgedRepository& repository) {
  const std::vector<RuleId>& asked = repository.askedRules;
  Suite suite;
  for (const Rule& rule : allRules()) {
    const bool isAsked = std::find(asked.begin(), asked.end(), rule.id) != asked.end();
    // That a repository cannot be read is told even when nobody asks.
    if (isAsked || isFound(repository.result, rule.id)) suite.add(repository.result, rule.id);
  }
  return suite;
}

}  // namespace

std::string junitReport(const std::vector<JudgedRepository>& repositories) {
  Suite all;
  std::string suites;
  for (const JudgedRepository& repository : repositories) {
    const Suite suite = suiteOf(repository);
    all.tests += suite.tests;
    all.failures += suite.failures;
    all.skipped += suite.skipped;
    suites += "  <testsuite" + attribute("name", repository.result.root) + suite.counts() + ">\n" + suite.cases +
              "  </testsuite>\n";
  }
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"zorvel check\"" + all.counts() + ">\n" +
         suites + "</testsuites>\n";
}

}  // namespace check
