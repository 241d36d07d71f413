#include "check/report/FindingJson.h"

#include "host/files/PrintableText.h"

namespace check {

namespace {

void addText(nlohmann::ordered_json& json, const char* key, const std::string& text) {
  if (!text.empty()) json[key] = host::printable(text);
}

void addNumber(nlohmann::ordered_json& json, const char* key, int number) {
  if (number > 0) json[key] = number;
}

}  // namespace

nlohmann::ordered_json findingJson(const Finding& finding) {
  nlohmann::ordered_json json;
  json["code"] = ruleOf(finding.rule).code;
  json["severity"] = nameOf(finding.severity);
  addText(json, "file", finding.file);
  addNumber(json, "line", finding.line);
  addNumber(json, "column", finding.column);
  addText(json, "element", finding.element);
  addText(json, "subject", finding.subject);
  json["message"] = host::printable(finding.message);
  return json;
}

}  // namespace check
