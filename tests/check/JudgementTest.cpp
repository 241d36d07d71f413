#include "check/Judgement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "check/JudgementFile.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using check::JudgedRepository;
using check::Judgement;
using check::RuleId;
using check::Severity;
using testing::HasSubstr;
using testing::Not;

/// One finding of each rule, with the rule's own severity.
check::CheckResult resultOf(const std::vector<RuleId>& rules) {
  check::CheckResult result;
  for (const RuleId rule : rules) {
    check::Finding finding;
    finding.rule = rule;
    finding.severity = check::ruleOf(rule).severity;
    result.findings.push_back(finding);
  }
  return result;
}

/// Codes and severities that are left, "ZV113 warning, ZV118 hint".
std::string left(const JudgedRepository& judged) {
  std::string text;
  for (const check::Finding& finding : judged.result.findings) {
    text += (text.empty() ? "" : ", ") + std::string(check::ruleOf(finding.rule).code) + ' ' + nameOf(finding.severity);
  }
  return text;
}

const std::vector<RuleId> THREE = {RuleId::ListNameExtended, RuleId::UnknownAttribute, RuleId::IdMissing};

std::string leftOfThree(const Judgement& judgement) { return left(judgement.judge(resultOf(THREE))); }

TEST(Judgement, DropsAndChangesByCodeOrNameAndCountsWhatItDropped) {
  Judgement judgement;
  EXPECT_EQ(leftOfThree(judgement), "ZV118 hint, ZV113 warning, ZV201 error");
  EXPECT_EQ(judgement.setSeverity("Unknown-Attribute", "error"), "");
  EXPECT_EQ(judgement.ignore("zv118"), "");
  const JudgedRepository judged = judgement.judge(resultOf(THREE));
  EXPECT_EQ(left(judged), "ZV113 error, ZV201 error");
  EXPECT_EQ(judged.ignoredCount, 1);
  EXPECT_EQ(judged.askedRules.size(), check::allRules().size() - 1);

  EXPECT_EQ(judgement.askFor("ZV118"), "");
  EXPECT_EQ(judgement.askFor("ZV201"), "");
  EXPECT_EQ(leftOfThree(judgement), "ZV201 error") << "ignored, though asked for";
  EXPECT_EQ(judgement.setSeverity("ZV201", "off"), "");
  EXPECT_EQ(leftOfThree(judgement), "");
}

TEST(Judgement, NamesWhatIsNearestToAnUnknownRuleAndKeepsWhatItHad) {
  Judgement judgement;
  EXPECT_THAT(judgement.ignore("unknown-atribute"), HasSubstr("\"unknown-atribute\"; nearest: unknown-attribute"));
  EXPECT_THAT(judgement.askFor("ZV1134"), HasSubstr("nearest: ZV113"));
  EXPECT_THAT(judgement.ignore(std::string("ZV113\0\x1b[2J", 10)), HasSubstr("ZV113\\x00\\x1b[2J"));
  EXPECT_THAT(judgement.setSeverity("ZV113", "fatal"), HasSubstr("error, warning, hint, off"));
  EXPECT_THAT(judgement.setFailOn("off"), HasSubstr("error, warning, hint, never"));
  EXPECT_NE(judgement.ignore(""), "");
  EXPECT_EQ(leftOfThree(judgement), "ZV118 hint, ZV113 warning, ZV201 error");
}

TEST(Judgement, FailsFromTheSeverityOnThatItIsTold) {
  const auto fails = [](const char* from, RuleId rule) {
    Judgement judgement;
    if (*from != '\0') {
      EXPECT_EQ(judgement.setFailOn(from), "");
    }
    return judgement.judge(resultOf({rule})).hasFailed;
  };
  EXPECT_TRUE(fails("", RuleId::UnknownAttribute));
  EXPECT_FALSE(fails("", RuleId::ListNameExtended));
  EXPECT_TRUE(fails("hint", RuleId::ListNameExtended));
  EXPECT_TRUE(fails("error", RuleId::IdMissing));
  EXPECT_FALSE(fails("error", RuleId::UnknownAttribute));
  EXPECT_FALSE(fails("never", RuleId::IdMissing));
}

TEST(Judgement, NeverIgnoresThatARepositoryCannotBeRead) {
  Judgement judgement;
  EXPECT_EQ(judgement.ignore("ZV101"), "");
  check::CheckResult result = resultOf({RuleId::DescriptionMissing});
  result.isReadable = false;
  const JudgedRepository judged = judgement.judge(result);
  EXPECT_EQ(left(judged), "ZV101 error");
  EXPECT_TRUE(judged.hasFailed);
  EXPECT_EQ(judged.ignoredCount, 0);
}

class JudgementFile : public testing::Test {
 protected:
  std::string read(const std::string& text, Judgement& judgement) const {
    folder_.write(check::JUDGEMENT_FILE, text);
    return check::readJudgement(folder_.path(), judgement);
  }
  Judgement judgement(const std::string& text) const {
    Judgement judgement;
    EXPECT_EQ(read(text, judgement), "") << text;
    return judgement;
  }
  support::TemporaryFolder folder_;
};

TEST_F(JudgementFile, SaysTheSameAsOptionsDo) {
  Judgement none;
  EXPECT_EQ(check::readJudgement(folder_.path(), none), "") << "there is no file";
  EXPECT_EQ(leftOfThree(none), "ZV118 hint, ZV113 warning, ZV201 error");
  const Judgement all = judgement(R"({"ignore": ["zv118"], "severity": {"ZV113": "hint", "ZV118": "error"},
                                      "only": ["ZV113", "list-name-extended"], "failOn": "hint",
                                      "targetRoot": "D:\\people\\"})");
  EXPECT_EQ(leftOfThree(all), "ZV113 hint");
  EXPECT_TRUE(all.judge(resultOf({RuleId::UnknownAttribute})).hasFailed);
  EXPECT_EQ(all.targetRoot(), "D:\\people\\");
}

TEST_F(JudgementFile, GivesWayToTheCommandLine) {
  const Judgement file = judgement(R"({"ignore": ["ZV118", "ZV201"], "severity": {"ZV113": "hint"}, "failOn": "never",
                                       "targetRoot": "D:\\"})");
  const auto with = [&](const char* only, const char* rule, const char* severity) {
    Judgement line;
    if (*only != '\0') {
      EXPECT_EQ(line.askFor(only), "");
    }
    if (*rule != '\0') {
      EXPECT_EQ(line.setSeverity(rule, severity), "");
    }
    return leftOfThree(line.over(file));
  };
  EXPECT_EQ(with("", "", ""), "ZV113 hint");
  EXPECT_EQ(with("", "ZV118", "warning"), "ZV118 warning, ZV113 hint");
  EXPECT_EQ(with("", "ZV113", "off"), "");
  EXPECT_EQ(with("ZV201", "", ""), "ZV201 error");
  EXPECT_EQ(with("ZV113", "ZV113", "error"), "ZV113 error");

  Judgement line;
  EXPECT_EQ(line.setSeverity("ZV113", "error"), "");
  EXPECT_EQ(leftOfThree(line.over(judgement(R"({"only": ["ZV118"]})"))), "ZV118 hint, ZV113 error");
  EXPECT_EQ(line.setFailOn("error"), "");
  line.setTargetRoot("E:\\");
  const Judgement both = line.over(file);
  EXPECT_TRUE(both.judge(resultOf({RuleId::UnknownAttribute})).hasFailed);
  EXPECT_EQ(both.targetRoot(), "E:\\");
}

TEST_F(JudgementFile, NamesFileAndKeyOfWhatItDoesNotUnderstand) {
  const struct {
    std::string text;
    const char* says;
  } cases[] = {
      {"", ": is no JSON from line 1, column 1 on"},
      {"{\"only\":\n  [\"ZV113\",]}", ": is no JSON from line 2, column 12 on"},
      {"{\"failOn\": \"\xff\"}", ": is no JSON from line 1, column 13 on"},
      {std::string(100000, '['), ": is no JSON from line 1"},
      {"[]", ": has to hold one JSON object"},
      {"{\"ignroe\": []}", ": ignroe: nothing of this name is read here; nearest: ignore"},
      {"{\"a\\u001b\\n\": 1}", ": a\\x1b\\x0a: nothing"},
      {"{\"ignore\": \"ZV113\"}", ": ignore: has to be a list of texts"},
      {"{\"ignore\": [\"ZV113\", 113]}", ": ignore[1]: has to be a text"},
      {"{\"only\": [\"ZV1130\"]}", ": only[0]: there is no rule \"ZV1130\"; nearest: ZV110, ZV113"},
      {"{\"severity\": [\"ZV113\"]}", ": severity: has to be an object"},
      {"{\"severity\": {\"ZV113\": \"hnt\"}}", ": severity.ZV113: \"hnt\" is none of error, warning, hint, off"},
      {"{\"failOn\": null}", ": failOn: has to be a text"},
      {"{\"targetRoot\": 5}", ": targetRoot: has to be a text"},
      {"{}" + std::string(1 << 20, ' '), ": is larger than a megabyte"}};
  for (const auto& one : cases) {
    Judgement judgement;
    const std::string error = read(one.text, judgement);
    EXPECT_THAT(error, HasSubstr((folder_.path() / check::JUDGEMENT_FILE).string() + one.says));
    EXPECT_THAT(error, Not(HasSubstr("\n")));
  }
}

TEST_F(JudgementFile, DoesNotWaitForWhatIsNoFile) {
  Judgement judgement;
  const std::filesystem::path file = folder_.path() / check::JUDGEMENT_FILE;
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_THAT(check::readJudgement(folder_.path(), judgement), HasSubstr("is no file"));
  std::filesystem::remove(file);
  std::filesystem::create_symlink("gone", file);
  EXPECT_THAT(check::readJudgement(folder_.path(), judgement), HasSubstr("is no file"));
}

}  // namespace
