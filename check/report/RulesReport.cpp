#include "check/report/RulesReport.h"

#include <nlohmann/json.hpp>

#include "check/Rule.h"

namespace check {

std::string rulesText() {
  std::string text;
  for (const Rule& rule : allRules()) {
    text += std::string(rule.code) + "  " + nameOf(rule.severity) + "  " + rule.name + "\n    " + rule.sentence +
            "\n    Remedy: " + rule.remedy + '\n';
  }
  return text;
}

std::string rulesJson() {
  nlohmann::ordered_json json = nlohmann::ordered_json::array();
  for (const Rule& rule : allRules()) {
    json.push_back({{"code", rule.code},
                    {"name", rule.name},
                    {"severity", nameOf(rule.severity)},
                    {"sentence", rule.sentence},
                    {"remedy", rule.remedy}});
  }
  return json.dump(2) + '\n';
}

}  // namespace check
