#include "check/report/CsvReport.h"

#include "check/report/CsvText.h"

namespace check {

namespace {

std::string number(int value) { return value > 0 ? std::to_string(value) : ""; }

std::string row(const CheckResult& result, const Finding& finding) {
  const Rule& rule = ruleOf(finding.rule);
  return csvRow({result.root, finding.file, number(finding.line), number(finding.column), nameOf(finding.severity),
                 rule.code, rule.name, finding.element, finding.subject, finding.message, rule.remedy});
}

}  // namespace

std::string csvReport(const std::vector<JudgedRepository>& repositories) {
  std::string table = csvRow(
      {"repository", "file", "line", "column", "severity", "code", "rule", "element", "subject", "message", "remedy"});
  for (const JudgedRepository& repository : repositories) {
    for (const Finding& finding : repository.result.findings) table += row(repository.result, finding);
  }
  return table;
}

}  // namespace check
