#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "apps/support/ExitStatus.h"
#include "tests/cli/ProgramRun.h"
#include "tests/support/SmallRepository.h"

namespace {

using support::Outcome;
using support::run;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

TEST(ExplainCommand, TellsTheStatusOfWhatItExplains) {
  const support::SmallRepository repository;
  repository.mend();
  repository.writePictures();
  const std::string root = repository.folder().path().string();
  const Outcome good = run({"explain", root, "k1"});
  EXPECT_EQ(good.status, apps::EXIT_CLEAN) << good.out;
  EXPECT_THAT(good.out, StartsWith("clothing \"k1\"\n  ok  described  " + root + "/zorvel.xml:11:"));
  EXPECT_THAT(good.out, HasSubstr("style k1m1: \"Blue\" from anna/summer/materials.mat\n"));
  EXPECT_THAT(good.out, testing::EndsWith("=> offered and built in 2 of 2 poses\n"));
  const Outcome never = run({"explain", root, "a6"});
  EXPECT_EQ(never.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(never.out, HasSubstr("NO  poses      all poses: the asset matrix has no row for it\n"));
  EXPECT_THAT(never.out, HasSubstr("[ZV409]\n      Remedy: Add a row"));
  EXPECT_THAT(never.out, testing::EndsWith("=> never offered\n"));
  const Outcome unknown = run({"explain", root, "a7"});
  EXPECT_EQ(unknown.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(unknown.err, StartsWith("zorvel explain: There is no element with the id \"a7\"; nearest: a1, "));
  EXPECT_EQ(run({"explain", root + "/anna", "k1"}).status, apps::EXIT_UNREADABLE);
  EXPECT_EQ(run({"explain", root}).status, apps::EXIT_USAGE);
}

TEST(ExplainCommand, PrintsJson) {
  const support::SmallRepository repository;
  const std::string root = repository.folder().path().string();
  const Json json = Json::parse(run({"explain", root, "a6", "--json"}).out);
  EXPECT_EQ(json["elements"][0]["element"], "character[c1]/assets/asset[a6]");
  EXPECT_EQ(json["elements"][0]["works"], false);
  EXPECT_EQ(json["elements"][0]["steps"][0]["topic"], "read");
  EXPECT_EQ(Json::parse(run({"explain", root, "a7", "--json"}).out)["nearest"].size(), 3U);
}

TEST(CheckMatrix, IsOfTextJsonAndCsv) {
  const support::SmallRepository repository;
  repository.writePictures();
  std::filesystem::remove(repository.folder().path() / "anna/summer/k1_p2.vrmesh");
  const std::string root = repository.folder().path().string();
  const Outcome text = run({"check", root, "--matrix"});
  EXPECT_EQ(text.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(text.out,
              HasSubstr("\n      1  2\n  k1  .  G\n  G k1 in p2: there is no mesh anna/summer/k1_p2.vrmesh [ZV403]\n"));
  const Json json = Json::parse(run({"check", root, "--matrix", "--format", "json"}).out);
  const Json cells = json["repositories"][0]["characters"][0]["clothes"][0]["cells"];
  EXPECT_EQ(cells[0], Json::parse(R"({"pose": "p1", "state": "builds"})"));
  EXPECT_EQ(cells[1]["file"], "anna/summer/k1_p2.vrmesh");
  EXPECT_THAT(run({"check", root, "--matrix", "--format", "csv"}).out, HasSubstr(",c1,k1,p2,grey,ZV403,"));
  for (const char* format : {"sarif", "junit"}) {
    EXPECT_EQ(run({"check", root, "--matrix", "--format", format}).status, apps::EXIT_USAGE);
  }
}

}  // namespace
