#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>

#include "apps/cli/CommandLine.h"
#include "apps/support/ExitStatus.h"
#include "check/Checker.h"
#include "check/explain/Explain.h"
#include "check/report/WearReport.h"
#include "tests/check/WearRepository.h"

namespace {

using check::WearCell;
using check::WearRow;
using check::WearState;
using check::WearTable;

check::CheckResult resultOf(const std::filesystem::path& root) {
  check::CheckerOptions options;
  options.wantsWear = true;
  return check::checkRepository(root, options);
}

int runQuietly(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "zorvel");
  std::vector<const char*> argv;
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = cli::run(static_cast<int>(argv.size()), argv.data());
  testing::internal::GetCapturedStdout();
  testing::internal::GetCapturedStderr();
  return status;
}

/// Whether the command builds it without anything to complain of.
bool isBuilt(const std::filesystem::path& root, const WearRow& row, const std::string& pose) {
  return runQuietly({"create", root.string(), "--cloth", row.clothing, "--pose", pose, "--bare"}) == apps::EXIT_CLEAN;
}

template <class Visit>
void forEachCell(const WearTable& table, Visit visit) {
  for (const WearRow& row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) visit(row, table.poses[i], row.cells[i]);
  }
}

TEST(WearTables, SayWhatTheFindingsSayAndWhatIsBuilt) {
  const support::WearRepository repository;
  const std::filesystem::path& root = repository.folder().path();
  const check::CheckResult result = resultOf(root);
  ASSERT_EQ(result.wear.size(), 1U);
  const WearTable& table = result.wear.front();
  ASSERT_EQ(table.poses.size(), 9U);
  ASSERT_EQ(table.rows.size(), 11U);
  std::set<WearState> states;
  forEachCell(table, [&](const WearRow& row, const std::string& pose, const WearCell& cell) {
    SCOPED_TRACE(row.clothing + " in " + pose + ": " + nameOf(cell.state) + " " + cell.code + " " + cell.reason);
    states.insert(cell.state);
    EXPECT_EQ(cell.reason.empty(), cell.state == WearState::Builds);
    // Another of the same id, or none, would be built instead.
    if (cell.state != WearState::Unchoosable) {
      EXPECT_EQ(cell.state == WearState::Builds, isBuilt(root, row, pose));
    }
    if (cell.state == WearState::Builds) return;
    const std::string poseElement = "character[c1]/poses/pose";
    EXPECT_TRUE(std::any_of(result.findings.begin(), result.findings.end(), [&](const check::Finding& finding) {
      const bool isHere = finding.element == row.element || finding.element.rfind(poseElement, 0) == 0;
      return ruleOf(finding.rule).code == cell.code && isHere;
    }));
  });
  EXPECT_EQ(states.size(), 5U) << "the repository has all states";
  EXPECT_FALSE(isBuilt(root, {"nostyle", "", {}}, "p1"));
}

TEST(WearTables, NameACharacterOfWhichNothingIsBuilt) {
  const support::SmallRepository repository;
  repository.writePictures();
  repository.edit("</zorvel>", R"(<character id="c2" name="x" folder="gone"/></zorvel>)");
  std::filesystem::remove(repository.folder().path() / "anna/skin/light.png");
  const std::filesystem::path& root = repository.folder().path();
  const check::CheckResult result = resultOf(root);
  ASSERT_EQ(result.wear.size(), 2U);
  forEachCell(result.wear.front(), [&](const WearRow& row, const std::string& pose, const WearCell& cell) {
    EXPECT_EQ(cell.state, WearState::Unchoosable);
    EXPECT_EQ(cell.code, "ZV404");
    EXPECT_FALSE(isBuilt(root, row, pose));
  });
  EXPECT_EQ(result.wear.back().character, "c2");
  EXPECT_THAT(result.wear.back().whyNone, testing::StartsWith("there is no folder gone/previews"));
}

TEST(WearTables, BuildNothingWithoutASkinThatCanBeChosen) {
  const support::SmallRepository repository;
  repository.mend();
  repository.writePictures();
  repository.edit(R"(<skin id="s1")", "<skin");
  const std::filesystem::path& root = repository.folder().path();
  forEachCell(resultOf(root).wear.front(), [&](const WearRow& row, const std::string& pose, const WearCell& cell) {
    EXPECT_EQ(cell.state, WearState::Unchoosable);
    EXPECT_EQ(cell.code, "ZV202");
    EXPECT_FALSE(isBuilt(root, row, pose));
  });
}

TEST(WearTables, FitIntoALineAndFoldWhatHasOneReason) {
  WearTable table;
  table.character = "anna";
  for (int i = 0; i < 12; ++i) table.poses.push_back("anna_a_pose_with_a_long_id_" + std::to_string(i));
  const WearCell grey = {WearState::Grey, "there is no folder", "f", "ZV301"};
  const WearCell hidden = {WearState::Hidden, "there is no pose", "g", "ZV302"};
  for (int i = 0; i < 30; ++i) {
    WearRow row = {"anna_" + std::string(static_cast<std::size_t>(i), 'x'), "", {}};
    row.cells.assign(12, i == 7 ? grey : WearCell());
    row.cells[4] = hidden;
    table.rows.push_back(row);
  }
  check::JudgedRepository repository;
  repository.result.wear = {table};
  std::istringstream text(check::wearText({repository}, false));
  int reasons = 0;
  for (std::string line; std::getline(text, line);) {
    EXPECT_LE(line.size(), 100U) << line;
    if (line.find("[ZV30") != std::string::npos) ++reasons;
  }
  EXPECT_EQ(reasons, 2);
  const std::string all = check::wearText({repository}, true);
  EXPECT_EQ(std::count(all.begin(), all.end(), '['), 41) << "one for each cell";
}

TEST(Explain, AgreesWithTheTableAndWithWhatCanBeCreated) {
  const support::WearRepository repository;
  const std::filesystem::path& root = repository.folder().path();
  const WearTable table = resultOf(root).wear.front();
  for (const WearRow& row : table.rows) {
    const auto builds = std::count_if(row.cells.begin(), row.cells.end(),
                                      [](const WearCell& cell) { return cell.state == WearState::Builds; });
    if (row.clothing.empty()) continue;
    bool isMet = false;
    for (const check::Explanation& one : check::explainId(root, row.clothing).explanations) {
      if (one.element != row.element || one.kind != "clothing") continue;
      isMet = isMet || one.works == (builds > 0);
      EXPECT_EQ(one.works, one.verdict.rfind("offered and built in ", 0) == 0) << one.verdict;
    }
    EXPECT_TRUE(isMet) << row.clothing;
  }
  for (const std::string asset : {"a1", "a2", "a3", "a4", "a5", "a6"}) {
    int created = 0;
    for (const char* pose : {"p1", "p2"}) {
      const std::vector<std::string> command = {"create", root.string(), "--cloth", "k1", "--pose",
                                                pose,     "--bare",      "--asset", asset};
      if (runQuietly(command) == apps::EXIT_CLEAN) ++created;
    }
    const check::Explanation one = check::explainId(root, asset).explanations.at(0);
    EXPECT_EQ(one.works, created > 0) << asset << ": " << one.verdict;
  }
}

TEST(Explain, TellsOfWhatWasNeverRead) {
  const support::SmallRepository repository;
  repository.writePictures();
  repository.edit("</zorvel>", R"(<character id="c2" name="x" folder="gone"><skins><skin id="s9"/></skins></character>
                               <charakter id="c3"/></zorvel>)");
  const std::filesystem::path& root = repository.folder().path();
  for (const char* id : {"c2", "s9", "c3"}) {
    const check::ExplainResult result = check::explainId(root, id);
    ASSERT_EQ(result.explanations.size(), 1U) << id;
    EXPECT_FALSE(result.explanations[0].works);
    ASSERT_EQ(result.explanations[0].steps.size(), 1U);
    EXPECT_THAT(result.explanations[0].steps[0].text,
                testing::HasSubstr(id[0] == 'c' && id[1] == '3' ? "means nothing" : "gone/previews"));
  }
  EXPECT_TRUE(check::explainId(root, "gone").explanations.empty()) << "only referred to";
}

}  // namespace
