#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>

#include "check/report/CsvReport.h"
#include "check/report/JsonReport.h"
#include "check/report/JunitReport.h"
#include "check/report/RulesReport.h"
#include "check/report/SarifReport.h"
#include "check/report/TextReport.h"
#include "host/files/PrintableText.h"
#include "tests/check/SampleFindings.h"
#include "tests/check/SchemaCheck.h"

namespace {

using check::JudgedRepository;
using check::RuleId;
using host::printable;
using testing::Each;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using Json = nlohmann::json;
using Repositories = std::vector<JudgedRepository>;

std::string readFile(const std::string& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// With ZORVEL_KEEP=1 in the environment the report becomes the kept one.
void expectKept(const std::string& name, const std::string& report) {
  const std::string file = KEPT_FILES + name;
  const char* keep = std::getenv("ZORVEL_KEEP");
  if (keep != nullptr && std::string(keep) == "1") std::ofstream(file, std::ios::binary) << report;
  EXPECT_EQ(report, readFile(file)) << file << "; ZORVEL_KEEP=1 keeps the new one";
}

std::string plainText(const Repositories& repositories) { return check::textReport(repositories, {}); }

TEST(Reports, AreAsKept) {
  const Repositories sample = support::sampleFindings();
  expectKept("sample.txt", plainText(sample));
  expectKept("sample-all-colored.txt", check::textReport(sample, {true, true}));
  expectKept("sample.json", check::jsonReport(sample));
  expectKept("sample.sarif", check::sarifReport(sample));
  expectKept("sample.xml", check::junitReport(sample));
  expectKept("sample.csv", check::csvReport(sample));
}

Json schema() { return Json::parse(readFile(SCHEMAS "check-report.schema.json")); }

TEST(Reports, KeepToTheSchemaThatIsPublished) {
  const Json report = Json::parse(check::jsonReport(support::sampleFindings()));
  EXPECT_EQ(support::schemaErrors(schema(), report), "");
  Json broken = report;
  broken["repositories"][0]["findings"][0]["severity"] = "fatal";
  broken["repositories"][0]["findings"][1]["line"] = 0;
  broken["repositories"][1].erase("root");
  broken["rules"]["ZV1"] = 5;
  broken["when"] = "now";
  EXPECT_THAT(support::schemaErrors(schema(), broken),
              testing::AllOf(HasSubstr("severity: enum"), HasSubstr("line: minimum"), HasSubstr("required \"root\""),
                             HasSubstr("ZV1: pattern"), HasSubstr("when: additionalProperties")))
      << "the schema and its reader tell what is wrong";
}

/// The rows of a table by RFC 4180.
std::vector<std::vector<std::string>> rowsOf(const std::string& csv) {
  std::vector<std::vector<std::string>> rows = {{""}};
  bool isQuoted = false;
  for (std::size_t i = 0; i < csv.size(); ++i) {
    if (csv[i] == '"' && isQuoted && csv[i + 1] == '"') {
      rows.back().back() += csv[++i];
    } else if (csv[i] == '"') {
      isQuoted = !isQuoted;
    } else if (csv[i] == ',' && !isQuoted) {
      rows.back().emplace_back();
    } else if (csv[i] == '\n' && !isQuoted) {
      rows.push_back({""});
    } else if (csv[i] != '\r' || isQuoted) {
      rows.back().back() += csv[i];
    }
  }
  rows.pop_back();
  return rows;
}

/// What an XPath expression says of an XML text; "not well-formed" when it is none.
std::string ask(const std::string& xml, const char* expression) {
  const int quiet = XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET;
  const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
      xmlReadMemory(xml.data(), static_cast<int>(xml.size()), "", nullptr, quiet), &xmlFreeDoc);
  if (!document) return "not well-formed";
  const std::unique_ptr<xmlXPathContext, decltype(&xmlXPathFreeContext)> context(xmlXPathNewContext(document.get()),
                                                                                 &xmlXPathFreeContext);
  const std::string asText = "string(" + std::string(expression) + ")";
  const std::unique_ptr<xmlXPathObject, decltype(&xmlXPathFreeObject)> answer(
      xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(asText.c_str()), context.get()), &xmlXPathFreeObject);
  return reinterpret_cast<const char*>(answer->stringval);
}

class HostileText : public testing::TestWithParam<std::string> {
 protected:
  std::string text() const { return GetParam(); }
  Repositories findings() const { return support::findingsNamed(text()); }
  /// No character steers what the report is shown with; apart from the ends of lines all is as it would be printed.
  static void expectPrintable(const std::string& report, const char* end) {
    std::size_t at = 0;
    for (std::size_t next; (next = report.find(end, at)) != std::string::npos; at = next + std::strlen(end)) {
      const std::string line = report.substr(at, next - at);
      EXPECT_EQ(line, printable(line));
    }
    EXPECT_EQ(at, report.size());
  }
};

TEST_P(HostileText, StaysInItsLineOfTheText) {
  const std::string report = plainText(findings());
  expectPrintable(report, "\n");
  const std::string tame = plainText(support::findingsNamed("tame"));
  EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), std::count(tame.begin(), tame.end(), '\n'));
  EXPECT_THAT(report, HasSubstr(printable(text()) + " [ZV201]\n    " + printable(text()) + "\n    Remedy: "));
}

TEST_P(HostileText, StaysInItsTextOfJson) {
  const std::string report = check::jsonReport(findings());
  expectPrintable(report, "\n");
  const Json json = Json::parse(report);
  EXPECT_EQ(support::schemaErrors(schema(), json), "");
  EXPECT_EQ(json["repositories"][0]["root"], printable(text()));
  ASSERT_EQ(json["repositories"][0]["findings"].size(), 2U);
  for (const char* key : {"file", "element", "subject", "message"}) {
    EXPECT_EQ(json["repositories"][0]["findings"][0][key], printable(text()));
  }
}

TEST_P(HostileText, StaysInItsTextOfSarif) {
  const std::string report = check::sarifReport(findings());
  expectPrintable(report, "\n");
  const Json run = Json::parse(report)["runs"][0];
  ASSERT_EQ(run["results"].size(), 2U);
  const Json result = run["results"][0];
  EXPECT_EQ(result["message"]["text"], printable(text()));
  const Json location = result["locations"][0];
  EXPECT_EQ(location["logicalLocations"][0]["fullyQualifiedName"], printable(text()));
  for (const Json& uri :
       {location["physicalLocation"]["artifactLocation"]["uri"], run["originalUriBaseIds"]["REPOSITORY_1"]["uri"]}) {
    EXPECT_THAT(uri.get<std::string>(), testing::MatchesRegex("[A-Za-z0-9/._~%-]+"));
  }
}

TEST_P(HostileText, StaysInItsTextOfXml) {
  const std::string report = check::junitReport(findings());
  expectPrintable(report, "\n");
  EXPECT_EQ(ask(report, "count(//testcase)"), std::to_string(check::allRules().size()));
  EXPECT_EQ(ask(report, "count(//*)"), std::to_string(check::allRules().size() + 4)) << "a failure, a hint, the suites";
  EXPECT_EQ(ask(report, "//testcase[failure]/@name"), "ZV201 id-missing");
  EXPECT_EQ(ask(report, "//testcase[system-out]/@name"), "ZV118 list-name-extended");
  if (text().find("\uFFFF") == std::string::npos) {
    EXPECT_EQ(ask(report, "//testsuite/@name"), printable(text()));
    EXPECT_EQ(ask(report, "//failure/@message"), printable(text()));
    EXPECT_THAT(ask(report, "//system-out"), EndsWith(printable(text()) + ")\n"));
  }
}

TEST_P(HostileText, StaysInItsCellOfATable) {
  const std::string report = check::csvReport(findings());
  expectPrintable(report, "\r\n");
  const auto rows = rowsOf(report);
  ASSERT_THAT(rows, SizeIs(3));
  EXPECT_THAT(rows, Each(SizeIs(11)));
  for (const std::size_t column : {0U, 1U, 7U, 8U, 9U}) {
    EXPECT_THAT(rows[1][column], EndsWith(printable(text())));
    EXPECT_THAT(rows[1][column].substr(0, 1), testing::Not(testing::AnyOf("=", "+", "-", "@")));
  }
}

INSTANTIATE_TEST_SUITE_P(Reports, HostileText,
                         testing::Values("a\tb\nc\rd\x7f", std::string("nul\0byte", 8), "\x1b]0;title\x07\x1b[2J",
                                         "]]></failure></testcase><testcase name=\"", "<!--&amp;--><![CDATA[x",
                                         "\"quotes\",'commas',\\", "=cmd|' /C calc'!A0", "+1", "-1", "@SUM(1)", "\t=1",
                                         "\r\n=1", "\u202egpj.exe\u2066\u2028", "M\xfcller \xed\xa0\x80 \xc0\xaf",
                                         "\u009b31m\u0085", "\uFFFE\uFFFF", "../../etc/passwd", "a%20b?c#d:e",
                                         "{\"$ref\": 1}", std::string(5000, '<')));

TEST(TextReport, FoldsMoreThanTenFindingsOfOneRuleInOneRepository) {
  const auto report = [](int count, bool showsAll, const char* character) {
    JudgedRepository repository;
    for (int i = 0; i < count; ++i) {
      const std::string element = *character == '\0' ? "" : character + std::to_string(i / 2) + "]/skins";
      repository.result.findings.push_back(support::finding(RuleId::IdMissing, element, "no id"));
    }
    // Another rule in between.
    repository.result.findings.insert(repository.result.findings.begin() + 1,
                                      support::finding(RuleId::UnknownElement, "", "unknown"));
    return check::textReport({repository}, {showsAll, false});
  };
  const auto shown = [](const std::string& text) {
    std::size_t count = 0;
    for (std::size_t at = 0; (at = text.find("[ZV201]", at)) != std::string::npos; ++at) ++count;
    return count;
  };
  EXPECT_EQ(shown(report(10, false, "character[")), 10U);
  EXPECT_EQ(shown(report(11, false, "character[")), 3U);
  EXPECT_EQ(shown(report(11, true, "character[")), 11U);
  EXPECT_THAT(report(11, false, "character["),
              HasSubstr("\n    \u2026 and 8 more like these, in 5 characters (--all shows them)\n"));
  EXPECT_THAT(report(11, false, ""), HasSubstr("\u2026 and 8 more like these (--all shows them)\n"));
  EXPECT_THAT(report(11, true, ""), Not(HasSubstr("--all")));
}

TEST(SarifReport, NamesAFindingTheSameWhenLinesMoveAndApartFromOthersThatAreAlike) {
  const auto fingerprints = [](int moved) {
    JudgedRepository repository;
    for (int i = 0; i < 3; ++i) {
      repository.result.findings.push_back(support::finding(RuleId::IdMissing, i == 2 ? "b" : "a", "see line 5"));
      repository.result.findings.back().line += moved + i;
    }
    std::vector<std::string> found;
    const Json json = Json::parse(check::sarifReport({repository, repository}));
    for (const Json& result : json["runs"][0]["results"]) {
      found.push_back(result["partialFingerprints"]["zorvelFinding/v1"]);
    }
    return found;
  };
  const std::vector<std::string> all = fingerprints(0);
  EXPECT_EQ(all, fingerprints(100));
  EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), 6U);
}

TEST(Rules, StandInTheOrderOfTheirIdsAndOfTheirCodes) {
  const std::vector<check::Rule>& rules = check::allRules();
  ASSERT_GE(rules.size(), 60U);
  for (std::size_t i = 0; i < rules.size(); ++i) {
    EXPECT_EQ(&check::ruleOf(static_cast<check::RuleId>(i)), &rules[i]) << rules[i].code;
    EXPECT_TRUE(i == 0 || std::string(rules[i - 1].code) < rules[i].code) << rules[i].code;
    EXPECT_NE(check::rulesText().find(rules[i].remedy), std::string::npos);
  }
  EXPECT_EQ(Json::parse(check::rulesJson()).size(), rules.size());
}

}  // namespace
