#include <map>

#include "check/report/ExplainReport.h"
#include "check/report/FindingPlace.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

constexpr std::size_t TOPIC_WIDTH = 11;
constexpr std::size_t SHOWN_OF_A_RULE = 3;

const char* signOf(ExplainedStep::State state) {
  const char* const signs[] = {"ok", "NO", " -"};
  return signs[static_cast<int>(state)];
}

std::string stepLine(const ExplainedStep& step) {
  const std::size_t blanks = TOPIC_WIDTH > step.topic.size() ? TOPIC_WIDTH - step.topic.size() : 1;
  return std::string("  ") + signOf(step.state) + "  " + step.topic + std::string(blanks, ' ') + step.text + '\n';
}

std::string findingLines(const CheckResult& repository, const std::vector<Finding>& findings) {
  std::map<RuleId, std::size_t> counts;
  for (const Finding& finding : findings) ++counts[finding.rule];
  std::map<RuleId, std::size_t> told;
  std::string text;
  for (const Finding& finding : findings) {
    const Rule& rule = ruleOf(finding.rule);
    const std::size_t before = told[finding.rule]++;
    if (before >= SHOWN_OF_A_RULE) continue;
    text += "  " + placeOf(repository, finding) + ": " + nameOf(finding.severity) + ": " + finding.message + " [" +
            rule.code + "]\n";
    const std::size_t more = counts[finding.rule] - SHOWN_OF_A_RULE;
    const bool isLastShown = before + 1 == SHOWN_OF_A_RULE && counts[finding.rule] > SHOWN_OF_A_RULE;
    if (isLastShown) text += "      \u2026 and " + std::to_string(more) + " more like these\n";
    if (before == 0) text += std::string("      Remedy: ") + rule.remedy + '\n';
  }
  return text;
}

std::string textOf(const Explanation& explanation, const CheckResult& repository) {
  std::string text = explanation.kind + " \"" + explanation.id + "\"\n";
  const std::string place =
      descriptionOf(repository) + ':' + std::to_string(explanation.line) + ':' + std::to_string(explanation.column);
  text += stepLine({ExplainedStep::State::Good, "described", place});
  text += std::string(TOPIC_WIDTH + 6, ' ') + explanation.element + '\n';
  for (const ExplainedStep& step : explanation.steps) text += stepLine(step);
  text += findingLines(repository, explanation.findings);
  return text + "=> " + explanation.verdict + '\n';
}

}  // namespace

std::string explainText(const ExplainResult& result) {
  CheckResult repository;
  repository.root = result.root;
  std::string text;
  for (const Explanation& explanation : result.explanations) {
    text += (text.empty() ? "" : "\n") + textOf(explanation, repository);
  }
  if (result.leftOut > 0) text += "\n\u2026 and " + std::to_string(result.leftOut) + " more elements have this id\n";
  if (!text.empty()) return text;
  text = "There is no element with the id \"" + host::printable(result.id) + '"';
  for (std::size_t i = 0; i < result.nearest.size(); ++i) text += (i == 0 ? "; nearest: " : ", ") + result.nearest[i];
  return text + ".\n";
}

}  // namespace check
