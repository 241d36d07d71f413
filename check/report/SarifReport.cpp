#include "check/report/SarifReport.h"

#include <cstdint>
#include <cstdio>
#include <cstring>
#include <map>
#include <nlohmann/json.hpp>

#include "host/files/PrintableText.h"

namespace check {

namespace {

using Json = nlohmann::ordered_json;

const char* const WORKING_FOLDER = "WORKING_FOLDER";

const char* levelOf(Severity severity) { return severity == Severity::Hint ? "note" : nameOf(severity); }

std::string baseOf(std::size_t repository) { return "REPOSITORY_" + std::to_string(repository + 1); }

/// Everything besides letters, digits, slashes and four marks becomes a percent sign and two digits.
std::string uriOf(const std::string& path) {
  std::string uri;
  for (const char c : path) {
    const bool isDigit = c >= '0' && c <= '9';
    const bool isLetter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    const bool isMark = c != '\0' && std::strchr("/-._~", c) != nullptr;
    char escaped[4];
    std::snprintf(escaped, sizeof escaped, "%%%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    uri += isDigit || isLetter || isMark ? std::string(1, c) : escaped;
  }
  return uri;
}

Json describeBase(const std::string& root) {
  const std::string uri = uriOf(root) + (root.empty() || root.back() != '/' ? "/" : "");
  if (!root.empty() && root.front() == '/') return {{"uri", "file://" + uri}};
  return {{"uri", root.empty() ? "./" : uri}, {"uriBaseId", WORKING_FOLDER}};
}

Json describe(const Rule& rule) {
  const std::string sentence = rule.sentence;
  return {{"id", rule.code},
          {"name", rule.name},
          {"shortDescription", {{"text", sentence}}},
          {"fullDescription", {{"text", sentence + ". " + rule.remedy}}},
          {"help", {{"text", rule.remedy}}},
          {"defaultConfiguration", {{"level", levelOf(rule.severity)}}}};
}

Json locationOf(const Finding& finding, std::size_t repository) {
  Json physical;
  physical["artifactLocation"] = {{"uri", finding.file.empty() ? "./" : uriOf(finding.file)},
                                  {"uriBaseId", baseOf(repository)}};
  if (finding.line > 0) physical["region"]["startLine"] = finding.line;
  if (finding.line > 0 && finding.column > 0) physical["region"]["startColumn"] = finding.column;
  Json location = {{"physicalLocation", physical}};
  if (!finding.element.empty()) {
    const Json element = {{"fullyQualifiedName", host::printable(finding.element)}, {"kind", "element"}};
    location["logicalLocations"] = Json::array({element});
  }
  return location;
}

/// FNV-1a, which is the same on every machine.
std::string hashOf(const std::string& text) {
  std::uint64_t hash = 0xcbf29ce484222325U;
  for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%016llx", static_cast<unsigned long long>(hash));
  return digits;
}

class Run {
 public:
  Run() { bases_[WORKING_FOLDER]["description"]["text"] = "The folder that zorvel check was run in"; }

  void add(const JudgedRepository& repository, std::size_t index) {
    bases_[baseOf(index)] = describeBase(repository.result.root);
    for (const Finding& finding : repository.result.findings) {
      results_.push_back(describe(finding, index));
    }
  }

  Json describe() const {
    Json driver = {{"name", "zorvel"}, {"version", ZORVEL_VERSION}, {"rules", rules_}};
    return {{"tool", {{"driver", driver}}}, {"originalUriBaseIds", bases_}, {"results", results_}};
  }

 private:
  Json describe(const Finding& finding, std::size_t repository) {
    Json json;
    json["ruleId"] = ruleOf(finding.rule).code;
    json["ruleIndex"] = indexOf(finding.rule);
    json["level"] = levelOf(finding.severity);
    json["message"]["text"] = host::printable(finding.message);
    json["locations"] = Json::array({locationOf(finding, repository)});
    json["partialFingerprints"]["zorvelFinding/v1"] = fingerprintOf(finding);
    return json;
  }

  /// Rules are told of when they are met first.
  std::size_t indexOf(RuleId rule) {
    const auto [known, isNew] = indices_.emplace(rule, rules_.size());
    if (isNew) rules_.push_back(check::describe(ruleOf(rule)));
    return known->second;
  }

  std::string fingerprintOf(const Finding& finding) {
    std::string text = ruleOf(finding.rule).code;
    for (const std::string& part : {finding.file, finding.element, finding.subject}) text += '\0' + part;
    // Of several that are alike each has its own.
    return hashOf(text + '\0' + std::to_string(seen_[text]++));
  }

  Json bases_ = Json::object();
  Json rules_ = Json::array();
  Json results_ = Json::array();
  std::map<RuleId, std::size_t> indices_;
  std::map<std::string, int> seen_;
};

}  // namespace

std::string sarifReport(const std::vector<JudgedRepository>& repositories) {
  Run run;
  for (std::size_t i = 0; i < repositories.size(); ++i) run.add(repositories[i], i);
  Json json;
  json["$schema"] = "https://json.schemastore.org/sarif-2.1.0.json";
  json["version"] = "2.1.0";
  json["runs"] = Json::array({run.describe()});
  return json.dump(2) + '\n';
}

}  // namespace check
