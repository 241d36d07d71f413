#include "check/report/JsonReport.h"

#include <set>

#include "check/report/FindingCounts.h"
#include "check/report/FindingJson.h"
#include "host/files/PrintableText.h"

namespace check {

namespace {

using Json = nlohmann::ordered_json;

/// As in the schema.
constexpr int FORM_VERSION = 1;

Json describe(const JudgedRepository& repository) {
  const CheckResult& result = repository.result;
  const FindingCounts counts = countsOf(result);
  Json json;
  json["root"] = host::printable(result.root);
  json["readable"] = result.isReadable;
  json["failed"] = repository.hasFailed;
  json["characters"] = result.characterCount;
  json["elements"] = result.elementCount;
  json["files"] = result.fileCount;
  json["errors"] = counts.errors;
  json["warnings"] = counts.warnings;
  json["hints"] = counts.hints;
  json["ignored"] = repository.ignoredCount;
  json["findings"] = Json::array();
  for (const Finding& finding : result.findings) json["findings"].push_back(findingJson(finding));
  return json;
}

/// Those that something was found of, in the order of the codes.
Json describeRules(const std::vector<JudgedRepository>& repositories) {
  std::set<RuleId> found;
  for (const JudgedRepository& repository : repositories) {
    for (const Finding& finding : repository.result.findings) found.insert(finding.rule);
  }
  Json json = Json::object();
  for (const RuleId id : found) {
    const Rule& rule = ruleOf(id);
    json[rule.code] = {{"name", rule.name}, {"remedy", rule.remedy}};
  }
  return json;
}

}  // namespace

std::string jsonReport(const std::vector<JudgedRepository>& repositories) {
  Json json;
  json["format"] = "zorvel-check";
  json["version"] = FORM_VERSION;
  json["repositories"] = Json::array();
  for (const JudgedRepository& repository : repositories) json["repositories"].push_back(describe(repository));
  json["rules"] = describeRules(repositories);
  return json.dump(2) + '\n';
}

}  // namespace check
