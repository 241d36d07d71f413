#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <nlohmann/json.hpp>

#include "apps/support/ExitStatus.h"
#include "apps/support/NearestIds.h"
#include "tests/cli/ProgramRun.h"
#include "tests/support/SmallRepository.h"

namespace {

using support::Outcome;
using support::run;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using Json = nlohmann::json;

class CommandLine : public testing::Test {
 protected:
  /// What has no picture is not offered, here as in the window.
  CommandLine() { repository_.writePictures(); }
  std::string root() const { return repository_.folder().path().string(); }
  std::string file(const std::string& name) const { return (out_.path() / name).string(); }
  bool isWritten(const std::string& name) const { return std::filesystem::exists(out_.path() / name); }
  Json json(const std::string& name) const { return Json::parse(out_.read(name)); }
  support::SmallRepository repository_;
  support::TemporaryFolder out_;
};

TEST_F(CommandLine, AnswersTheExitStatusThatTheHelpPromises) {
  const support::TemporaryFolder broken;
  broken.write("malformed/zorvel.xml", "<zorvel>\n <a\xFF/></zorvel>");
  broken.write("other/zorvel.xml", "<catalogue/>");
  broken.write("empty/zorvel.xml", "");
  const std::string base = broken.path().string();
  const struct {
    std::vector<std::string> arguments;
    int status;
    const char* says;
  } cases[] = {
      {{"--help"}, apps::EXIT_CLEAN, "Exit status"},
      {{"create", "--help"}, apps::EXIT_CLEAN, "Exit status"},
      {{"list", "--help"}, apps::EXIT_CLEAN, "Exit status"},
      {{"sample", "--help"}, apps::EXIT_CLEAN, "Exit status"},
      {{}, apps::EXIT_USAGE, "subcommand"},
      {{"crate", root()}, apps::EXIT_USAGE, "subcommand"},
      {{"create"}, apps::EXIT_USAGE, "DIR"},
      {{"create", root(), "--unit", "elephants"}, apps::EXIT_USAGE, "elephants"},
      {{"create", root(), "--at", "0,2e10,0"}, apps::EXIT_USAGE, "2e10 is no number from -10,000,000,000 to"},
      {{"create", root(), "--at", "0,0,nan"}, apps::EXIT_USAGE, "nan is no number"},
      {{"create", root(), "--eye", "0,0,inf", "--target", "0,0,0"}, apps::EXIT_USAGE, "inf is no number"},
      {{"create", root(), "--turn", "1e39"}, apps::EXIT_USAGE, "--turn"},
      {{"list", base + "/none"}, apps::EXIT_UNREADABLE, "not a folder"},
      {{"list", base}, apps::EXIT_UNREADABLE, "no zorvel.xml"},
      {{"list", base + "/malformed"}, apps::EXIT_UNREADABLE, "malformed/zorvel.xml:2:4: not well-formed XML: "},
      {{"create", base + "/malformed"}, apps::EXIT_UNREADABLE, "malformed/zorvel.xml:2:4: not well-formed XML: "},
      {{"list", base + "/empty"}, apps::EXIT_UNREADABLE, "well-formed"},
      {{"create", base + "/other"}, apps::EXIT_UNREADABLE, "zorvel.xml:1:1: the document element is \"catalogue\""},
      {{"list", root()}, apps::EXIT_CLEAN, "Anna"}};
  for (const auto& one : cases) {
    const Outcome outcome = run(one.arguments);
    EXPECT_EQ(outcome.status, one.status) << testing::PrintToString(one.arguments);
    EXPECT_THAT(outcome.out + outcome.err, HasSubstr(one.says)) << testing::PrintToString(one.arguments);
    if (one.status == apps::EXIT_UNREADABLE) {
      EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << "one line";
    }
  }
}

TEST_F(CommandLine, ListsWhatTheModelHoldsAndWhatIsUsable) {
  std::filesystem::remove_all(repository_.folder().path() / "anna/hat");
  const Outcome outcome = run({"list", root(), "--json"});
  const Json anna = Json::parse(outcome.out)["characters"][0];
  EXPECT_EQ(anna["id"], "c1");
  EXPECT_EQ(anna["poses"][0]["mandatory"], Json({"a2", "gone"}));
  EXPECT_EQ(anna["clothing"][0]["styles"].size(), 3U);
  EXPECT_EQ(anna["clothing"][0]["excludes"], Json({"a3"}));
  EXPECT_EQ(anna["categories"][1]["required"], true);
  EXPECT_EQ(anna["assets"][2]["usable"], false);
  EXPECT_EQ(anna["assets"][3]["usable"], true);
  EXPECT_EQ(anna["assets"][4]["globalID"], "g1");
}

TEST_F(CommandLine, ListNamesWhatWasLeftOutOrSkippedWithItsPlace) {
  const std::string file = root() + "/zorvel.xml";
  const auto list = [&](const std::string& inside) {
    repository_.folder().write("zorvel.xml", "<zorvel>\n " + inside + "</zorvel>");
    const Outcome outcome = run({"list", root(), "--json"});
    EXPECT_TRUE(Json::accept(outcome.out)) << "nothing but JSON on standard output";
    return std::make_pair(outcome.status, outcome.err);
  };
  EXPECT_EQ(list("<globalAssets/>"), std::make_pair(int{apps::EXIT_CLEAN}, std::string()));
  EXPECT_EQ(
      list("<Character/>"),
      std::make_pair(int{apps::EXIT_CLEAN},
                     file + ":2:2: \"Character\" in \"zorvel\" is skipped: nothing of that name is read there.\n"));
  EXPECT_EQ(list("<character id='x' folder='nobody'/>"),
            std::make_pair(int{apps::EXIT_FINDINGS}, file + ":2:2: character \"x\" left out: there is no folder " +
                                                         root() + "/nobody/previews.\n"));
  EXPECT_EQ(list("<character folder='anna'><cloth><clothing id='k9'/></cloth></character>"),
            std::make_pair(int{apps::EXIT_FINDINGS}, file + ":2:34: clothing \"k9\" left out: there is no picture " +
                                                         root() + "/anna/previews/preview_k9.png.\n"));
}

TEST_F(CommandLine, WhatARepositorySaysSteersNoTerminal) {
  repository_.edit("<zorvel>", "<zorvel><character id=\"un\u202eknown\"/>");
  repository_.edit("name=\"Anna\"", "name=\"An\u009b31mna\"");
  const Outcome listed = run({"list", root()});
  EXPECT_THAT(listed.out, HasSubstr("An\\u009b31mna"));
  EXPECT_THAT(listed.err, HasSubstr("un\\u202eknown"));
  EXPECT_THAT(run({"create", root(), "--bare"}).out, Not(HasSubstr("\u009b")));
}

TEST_F(CommandLine, WhatItIsGivenOrReadsForgesNoLineInAnyCommand) {
  const std::string evil = "x\nforged\x1b[2J\u202e\xff";
  const std::filesystem::path lying = repository_.folder().path() / evil;
  ASSERT_EQ(run({"init", lying.string()}).status, apps::EXIT_CLEAN);
  std::vector<std::vector<std::string>> calls = {
      {evil},
      {"list", root(), evil},
      {"check", root(), "--format", evil},
      {"check", root(), "--output", file("none/" + evil)},
      {"check", root(), "--ignore", evil},
      {"explain", root(), evil},
      {"create", root(), "--unit", evil},
      {"create", root(), "--asset", evil},
      {"create", root(), "--into", evil},
      {"create", root(), "--json", file(evil)},
      {"create", root(), "--json", evil + "/none"},
      {"create", root(), "--gltf", file(evil), "--json", file(evil)},
      {"add", root(), "pose", evil},
      {"add", root(), "style", "s", "--to", evil},
      {"sample", root() + "/zorvel.xml/" + evil},
      {"init", lying.string()},
      {"doctor", evil},
  };
  for (const char* command : {"list", "check", "create", "doctor"}) {
    calls.push_back({command, evil});
    calls.push_back({command, lying.string()});
  }
  for (const std::vector<std::string>& call : calls) {
    const Outcome outcome = run(call);
    for (const std::string& text : {outcome.out, outcome.err}) {
      EXPECT_THAT(text, AllOf(Not(HasSubstr("\nforged")), Not(HasSubstr("\x1b")), Not(HasSubstr("\u202e")),
                              Not(HasSubstr("\xff"))))
          << testing::PrintToString(call);
    }
  }
}

TEST_F(CommandLine, BuildsTheFirstUsableChoiceCleanlyAndWritesItsFiles) {
  repository_.mend();
  const Outcome outcome = run({"create", root(), "--picture", file("a.png"), "--width", "64", "--height", "48",
                               "--gltf", file("a.glb"), "--json", file("a.json")});
  EXPECT_EQ(outcome.status, apps::EXIT_CLEAN) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("Built ZORVEL Character Anna, 5 nodes"));
  EXPECT_THAT(outcome.out, HasSubstr("material Blue"));
  EXPECT_TRUE(isWritten("a.png"));
  EXPECT_EQ(out_.read("a.glb").substr(0, 4), "glTF");
  const Json head = json("a.json")["nodes"][0];
  EXPECT_EQ(head["group"], "head");
  EXPECT_EQ(head["layer"], "ZORVEL Characters");
  const Json body = head["children"][0]["children"][0];
  EXPECT_EQ(body["properties"]["ZORVEL_POSE"], "p1");
  EXPECT_EQ(body["material"]["textures"][0], root() + "\\maps\\skin_d.png");
}

TEST_F(CommandLine, NamesTheNearestIdsAndBuildsNothingForAnUnknownOne) {
  for (const char* option : {"--character", "--cloth", "--pose", "--skin", "--style", "--asset"}) {
    const Outcome outcome = run({"create", root(), option, "p11x", "--json", file("none.json")});
    EXPECT_EQ(outcome.status, apps::EXIT_FINDINGS);
    EXPECT_THAT(outcome.err, HasSubstr("\"p11x\""));
    EXPECT_THAT(outcome.err, testing::AnyOf(HasSubstr("nearest: "), HasSubstr("known: ")));
    EXPECT_THAT(outcome.out, Not(HasSubstr("Built")));
    EXPECT_FALSE(isWritten("none.json"));
  }
  EXPECT_THAT(apps::nearestIds("Standng", {"sitting", "standing", "walking"}),
              ElementsAre("standing", "sitting", "walking"));
}

TEST_F(CommandLine, BuildsWithoutWhatIsMissingOrUnreadableAndSaysWhich) {
  std::filesystem::remove(repository_.folder().path() / "anna/standing/pose.vrmesh");
  repository_.folder().write("anna/summer/k1_p1.vrmesh", std::string("\x7fVRAY\0binary", 12));
  repository_.folder().write("anna/summer/materials.mat", std::string("\0\1\2binary", 9));
  repository_.folder().write("maps/skin_d.png", "no picture");
  const Outcome outcome = run({"create", root(), "--json", file("a.json")});
  EXPECT_EQ(outcome.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(outcome.out, HasSubstr("Built ZORVEL Character Anna"));
  for (const char* named :
       {"pose.vrmesh", "k1_p1.vrmesh", "summer\\materials.mat", "\"Blue\"", "skin_d.png", "oak.png"}) {
    EXPECT_THAT(outcome.err, HasSubstr(named));
  }
  EXPECT_TRUE(isWritten("a.json"));
}

TEST_F(CommandLine, NamesWhatIsLeftOutOrBuiltBare) {
  repository_.mend();
  repository_.edit(R"(name="Standing" )", "");
  repository_.edit(R"(material="Blue" preview)", "preview");
  const Outcome outcome = run({"create", root(), "--asset", "a1", "--bare"});
  EXPECT_EQ(outcome.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(outcome.out, HasSubstr("bag\\asset.vrmesh  material Canvas\n"));
  EXPECT_EQ(outcome.err,
            "finding: Body (p1): left out: it has no \"name\".\n"
            "finding: Mandatory asset (a2): left out: the body that it belongs to was left out.\n"
            "finding: Clothing \"Summer\" (k1): no material: style \"k1m1\" has no \"material\".\n");
}

TEST_F(CommandLine, ChoosesAssetsByTheRulesOfClothingPoseAndCategory) {
  repository_.mend();
  const Outcome outcome =
      run({"create", root(), "--asset", "a1:a1m1", "--asset", "a3", "--asset", "a6", "--asset", "g1:g1m1"});
  EXPECT_EQ(outcome.status, apps::EXIT_FINDINGS);
  EXPECT_THAT(outcome.out, HasSubstr("material Canvas"));
  EXPECT_THAT(outcome.out, HasSubstr("bench"));
  EXPECT_THAT(outcome.err, HasSubstr("a3 left out: the clothing excludes"));
  EXPECT_THAT(outcome.err, HasSubstr("a6 left out: the asset matrix has no row for pose"));
}

TEST_F(CommandLine, LeavesNothingBehindWhereAFileCannotBeWritten) {
  const Outcome outcome = run({"create", root(), "--gltf", file("none/a.glb"), "--json", file("none/a.json")});
  EXPECT_EQ(outcome.status, apps::EXIT_INTERNAL);
  EXPECT_THAT(outcome.err, HasSubstr("a.glb"));
  EXPECT_THAT(outcome.err, HasSubstr("a.json"));
  EXPECT_TRUE(std::filesystem::is_empty(out_.path()));
}

TEST_F(CommandLine, PlacesTheGroupWhereItIsTold) {
  repository_.mend();
  const Outcome outcome =
      run({"create", root(), "--unit", "meters", "--at", "1.5,-2,0.75", "--turn", "90", "--json", file("a.json")});
  EXPECT_EQ(outcome.status, apps::EXIT_CLEAN) << outcome.err;
  const Json head = json("a.json")["nodes"][0];
  EXPECT_EQ(head["transform"][3], Json({1.5, -2.0, 0.75}));
  EXPECT_NEAR(head["transform"][0][1].get<double>(), 0.01, 1e-7);
  EXPECT_EQ(head["children"][0]["selected"], true);
  EXPECT_EQ(run({"create", root(), "--at", "1,2"}).status, apps::EXIT_USAGE);
}

TEST_F(CommandLine, BuildsIntoASceneThatIsThereAndTakesThePictureFromWhereItIsTold) {
  repository_.mend();
  ASSERT_EQ(run({"create", root(), "--unit", "meters", "--json", file("one.json")}).status, apps::EXIT_CLEAN);
  const Outcome outcome =
      run({"create", root(), "--into", file("one.json"), "--at", "2,0,0", "--json", file("two.json"), "--picture",
           file("near.png"), "--width", "32", "--height", "32", "--eye", "0,-9,1", "--target", "0,0,1"});
  EXPECT_EQ(outcome.status, apps::EXIT_CLEAN) << outcome.err;
  EXPECT_THAT(outcome.out, HasSubstr("Built ZORVEL Character Anna, 5 nodes"));
  const Json scene = json("two.json");
  EXPECT_EQ(scene["unit"]["type"], json("one.json")["unit"]["type"]);
  ASSERT_EQ(scene["nodes"].size(), 2U);
  EXPECT_EQ(scene["nodes"][0]["transform"][3], Json({0.0, 0.0, 0.0}));
  EXPECT_EQ(scene["nodes"][1]["transform"][3], Json({2.0, 0.0, 0.0}));
  run({"create", root(), "--into", file("one.json"), "--at", "2,0,0", "--picture", file("far.png"), "--width", "32",
       "--height", "32", "--eye", "0,-90,1", "--target", "0,0,1"});
  EXPECT_NE(out_.read("near.png"), out_.read("far.png"));

  out_.write("torn.json", R"({"format": "zorvel-scene", "version": 1, "nodes": [)");
  EXPECT_EQ(run({"create", root(), "--into", file("torn.json")}).status, apps::EXIT_UNREADABLE);
  EXPECT_EQ(run({"create", root(), "--into", file("one.json"), "--unit", "meters"}).status, apps::EXIT_USAGE);
  EXPECT_EQ(run({"create", root(), "--eye", "0,0,0"}).status, apps::EXIT_USAGE);
}

TEST_F(CommandLine, GivesEveryOptionToTheCommandWhenRunAsAProgram) {
  // The toolkit knows some of them too and would take them for itself.
  const std::string call = std::string(ZORVEL_PROGRAM) + " create '" + root() + "' --style unheard 2> '";
  EXPECT_NE(std::system((call + file("err.txt") + "'").c_str()), 0);
  EXPECT_THAT(out_.read("err.txt"), HasSubstr("\"unheard\""));
}

/// Decimal commas and grouped thousands, whatever locales the machine has.
class CommaPunctuation : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST_F(CommandLine, ReadsAndWritesTheSameNumbersInALocaleWithDecimalCommas) {
  const auto create = [&](const std::string& name) {
    run({"create", root(), "--asset", "a1", "--unit", "inches", "--json", file(name)});
    Json nodes = json(name)["nodes"];
    return nodes[0]["children"][0]["children"][3]["transform"];
  };
  const Json plain = create("plain.json");
  const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  const Json comma = create("comma.json");
  std::locale::global(before);
  std::setlocale(LC_ALL, "C");
  EXPECT_EQ(plain, comma);
  EXPECT_NEAR(plain[3][0].get<double>(), 10 / 2.54, 1e-5);
}

}  // namespace
