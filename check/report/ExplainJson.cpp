#include "check/report/ExplainReport.h"
#include "check/report/FindingJson.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

nlohmann::ordered_json explanationJson(const Explanation& explanation) {
  const char* const states[] = {"ok", "no", "note"};
  nlohmann::ordered_json json;
  json["kind"] = explanation.kind;
  json["element"] = explanation.element;
  json["line"] = explanation.line;
  json["column"] = explanation.column;
  json["works"] = explanation.works;
  json["verdict"] = explanation.verdict;
  json["steps"] = nlohmann::ordered_json::array();
  for (const ExplainedStep& step : explanation.steps) {
    json["steps"].push_back(
        {{"state", states[static_cast<int>(step.state)]}, {"topic", step.topic}, {"text", step.text}});
  }
  json["findings"] = nlohmann::ordered_json::array();
  for (const Finding& finding : explanation.findings) {
    nlohmann::ordered_json one = findingJson(finding);
    one["remedy"] = ruleOf(finding.rule).remedy;
    json["findings"].push_back(one);
  }
  return json;
}

}  // namespace

std::string explainJson(const ExplainResult& result) {
  nlohmann::ordered_json json;
  json["format"] = "zorvel-explain";
  json["version"] = 1;
  json["root"] = host::printable(result.root);
  json["id"] = host::printable(result.id);
  json["elements"] = nlohmann::ordered_json::array();
  for (const Explanation& explanation : result.explanations) json["elements"].push_back(explanationJson(explanation));
  if (result.leftOut > 0) json["leftOut"] = result.leftOut;
  json["nearest"] = result.nearest;
  return json.dump(2) + '\n';
}

}  // namespace check
