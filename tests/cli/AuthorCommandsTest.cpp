#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <map>
#include <nlohmann/json.hpp>

#include "apps/support/ExitStatus.h"
#include "tests/cli/ProgramRun.h"
#include "tests/support/LocalAppData.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using support::Outcome;
using support::run;
using testing::HasSubstr;
using testing::Not;

class AuthorCommands : public testing::Test {
 protected:
  std::string root() const { return (folder_.path() / "people").string(); }
  std::string description() const { return folder_.read("people/zorvel.xml"); }
  void describe(const std::string& text) const { folder_.write("people/zorvel.xml", text); }

  Outcome add(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"add", root()});
    return run(arguments);
  }

  /// Below the repository, in order.
  std::vector<std::string> files() const {
    std::vector<std::string> found;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root())) {
      if (!entry.is_directory()) found.push_back(entry.path().lexically_relative(root()).string());
    }
    std::sort(found.begin(), found.end());
    return found;
  }

  support::TemporaryFolder folder_;
};

TEST_F(AuthorCommands, InitWritesNothingButWhatBuilds) {
  ASSERT_EQ(run({"init", root()}).status, apps::EXIT_CLEAN);
  const std::map<std::string, QSize> pictures = {{"mannequin/leisure/blue.png", {100, 300}},
                                                 {"mannequin/previews/leisure_standing.png", {100, 300}},
                                                 {"mannequin/previews/preview_leisure.png", {110, 330}},
                                                 {"mannequin/skin/plain.png", {150, 150}},
                                                 {"maps/mannequin_leisure.png", {256, 256}},
                                                 {"maps/mannequin_plain.png", {512, 512}},
                                                 {"overlay100x300.png", {100, 300}},
                                                 {"overlay110x330.png", {110, 330}}};
  std::vector<std::string> expected = {"mannequin/leisure/leisure_standing.vrmesh", "mannequin/leisure/materials.mat",
                                       "mannequin/skin/skin.mat", "mannequin/standing/pose.vrmesh", "zorvel.xml"};
  for (const auto& [file, size] : pictures) {
    expected.push_back(file);
    EXPECT_EQ(QImage(QString::fromStdString(root() + "/" + file)).size(), size) << file;
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(files(), expected);
  const Outcome listed = run({"list", root()});
  EXPECT_EQ(listed.status, apps::EXIT_CLEAN);
  EXPECT_EQ(listed.err, "");
  const Outcome created = run({"create", root()});
  EXPECT_EQ(created.status, apps::EXIT_CLEAN) << created.err;
  EXPECT_THAT(created.out, HasSubstr("pose.vrmesh  material Mannequin Plain"));
  EXPECT_THAT(created.out, HasSubstr("leisure_standing.vrmesh  material Mannequin Leisure Blue"));
}

TEST_F(AuthorCommands, InitTouchesNothingWhereItCannotWriteItAll) {
  folder_.write("people/.hidden", "mine");
  const Outcome refused = run({"init", root()});
  EXPECT_EQ(refused.status, apps::EXIT_USAGE);
  EXPECT_THAT(refused.err, HasSubstr("not empty"));
  EXPECT_EQ(files(), std::vector<std::string>{".hidden"});
  EXPECT_EQ(run({"init", root() + "/.hidden"}).status, apps::EXIT_USAGE);
  EXPECT_EQ(run({"init", root() + "/.hidden/below"}).status, apps::EXIT_INTERNAL);
  EXPECT_EQ(folder_.read("people/.hidden"), "mine");
  fs::remove(root() + "/.hidden");
  EXPECT_EQ(run({"init", root()}).status, apps::EXIT_CLEAN) << "an empty folder will do";
}

TEST_F(AuthorCommands, AddWritesAsTheAuthorDoesAndLeavesEveryOtherByte) {
  const struct {
    std::string before;
    std::vector<std::string> arguments;
    std::string after;
  } cases[] = {
      // Tabs, Windows line ends, a byte order mark, single quotes, a list closed at once with a comment behind it.
      {"\xEF\xBB\xBF<?xml version='1.0'?>\r\n<zorvel>\r\n\t<character id='c' folder='c'>\r\n\t\t<poses  /><!-- x "
       "-->\r\n"
       "\t</character>\r\n</zorvel>",
       {"pose", "o'n&e"},
       "\xEF\xBB\xBF<?xml version='1.0'?>\r\n<zorvel>\r\n\t<character id='c' folder='c'>\r\n\t\t<poses>\r\n"
       "\t\t\t<pose id='o&apos;n&amp;e' name='O&apos;n&amp;e' folder='o&apos;n&amp;e'/>\r\n\t\t</poses><!-- x -->\r\n"
       "\t</character>\r\n</zorvel>"},
      // All on one line; two lists are missing, or empty.
      {"<zorvel><character id='c' folder='c'><assets/><categories><category id='k'/></categories><poses><pose id='p'/>"
       "</poses></character></zorvel>",
       {"asset", "a", "--material", "M"},
       "<zorvel><character id='c' folder='c'><assets><asset id='a' name='A' folder='a' type='common' category='k' "
       "material='M'/></assets><categories><category id='k'/></categories><poses><pose id='p'/></poses><AssetMatrix>"
       "<matrix poseID='p' assetID='a' xpos='0' ypos='0' zpos='0' xrot='0' yrot='0' zrot='0'/></AssetMatrix>"
       "</character></zorvel>"},
      // Markup in values and comments; the comment belongs to what it stands behind.
      {"<zorvel>\n <character id=\"c\" folder=\"c\">\n  <skins>\n   <skin id=\"p\"\n         material=\"a/>\"/> "
       "<!-- </skins> -->\n   <!-- end -->\n  </skins></character>\n</zorvel>\n",
       {"skin", "q", "--name", "A \"B\""},
       "<zorvel>\n <character id=\"c\" folder=\"c\">\n  <skins>\n   <skin id=\"p\"\n         material=\"a/>\"/> "
       "<!-- </skins> -->\n   <skin id=\"q\" name=\"A &quot;B&quot;\" preview=\"q.png\" material=\"c A "
       "&quot;B&quot;\"/>"
       "\n   <!-- end -->\n  </skins></character>\n</zorvel>\n"},
      // A list that holds nothing but a comment, and an encoding that cannot hold the name.
      {"<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\n<zorvel>\n    <!-- caf\xE9 -->\n    <globalAssets>\n"
       "        <!-- none -->\n    </globalAssets>\n</zorvel>\n",
       {"asset", "g", "--type", "global", "--name", "\xE2\x82\xAC", "--material", "M"},
       "<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>\n<zorvel>\n    <!-- caf\xE9 -->\n    <globalAssets>\n"
       "        <!-- none -->\n        <asset id=\"g\" name=\"&#8364;\" folder=\"g\" type=\"global\" material=\"M\"/>\n"
       "    </globalAssets>\n</zorvel>\n"},
      {"<zorvel></zorvel>",
       {"character", "c_d"},
       "<zorvel>\n  <character id=\"c_d\" name=\"C D\" folder=\"c_d\">\n    <skins name=\"Skin\"/>\n"
       "    <cloth name=\"Clothing\"/>\n    <poses name=\"Pose\"/>\n    <categories/>\n    <assets/>\n"
       "    <AssetMatrix/>\n  </character>\n</zorvel>"}};
  for (const auto& one : cases) {
    describe(one.before);
    const Outcome outcome = add(one.arguments);
    EXPECT_EQ(outcome.status, apps::EXIT_CLEAN) << outcome.err;
    EXPECT_EQ(description(), one.after);
    EXPECT_EQ(files(), std::vector<std::string>{"zorvel.xml"});
  }
}

TEST_F(AuthorCommands, AddRefusesWithOneLineAndTheFileAsItWas) {
  const std::string good =
      "<zorvel><character id='anna' folder='a'><cloth><clothing id='a' folder='k'/></cloth><poses><pose id='Walk' "
      "folder='w'/><pose id='b_c'/></poses></character><character id='bob' folder='b'/></zorvel>";
  const struct {
    std::string description;
    std::vector<std::string> arguments;
    int status;
    const char* says;
  } cases[] = {
      {good, {"pose", "x", "--to", "ana"}, apps::EXIT_FINDINGS, "nearest: anna"},
      {good, {"pose", "x"}, apps::EXIT_USAGE, "--to has to say which character it belongs to: anna, bob"},
      {good, {"pose", "wALK", "--to", "anna"}, apps::EXIT_FINDINGS, "does not tell from \"wALK\""},
      {good, {"pose", "w", "--to", "anna"}, apps::EXIT_FINDINGS, "folder \"w\" is that of \"Walk\""},
      {good, {"pose", "skin", "--to", "anna"}, apps::EXIT_USAGE, "\"skin\" has another use"},
      {good, {"character", "bob"}, apps::EXIT_FINDINGS, "already a character with the id \"bob\"."},
      {good, {"character", "x", "--folder", "a/b"}, apps::EXIT_USAGE, "the character /"},
      {good, {"character", "nul.x"}, apps::EXIT_USAGE, "device nul"},
      {good, {"character", "x\xFF"}, apps::EXIT_USAGE, "XML cannot hold"},
      {good, {"pose", "x", "--multiple"}, apps::EXIT_USAGE, "--multiple says nothing about a pose"},
      {good, {"hat", "x"}, apps::EXIT_USAGE, "hat"},
      {good, {"style", "x", "--to", "bob"}, apps::EXIT_FINDINGS, "no clothing yet"},
      {good, {"asset", "x", "--to", "bob"}, apps::EXIT_FINDINGS, "no category"},
      {good, {"asset", "x", "--to", "bob", "--global", "g"}, apps::EXIT_FINDINGS, "no shared asset"},
      {"<zorvel><character id='c'><cloth><clothing id='a'/></cloth><poses><pose id='b_c'/><pose id='c'/></poses>"
       "</character></zorvel>",
       {"clothing", "a_b"},
       apps::EXIT_FINDINGS,
       "two pictures would have one name"},
      {"<zorvel/>", {"pose", "x"}, apps::EXIT_FINDINGS, "no character yet"},
      {"<zorvel><character></zorvel>", {"character", "x"}, apps::EXIT_UNREADABLE, "zorvel.xml:1:29: not well-formed"},
      {"<catalogue/>", {"character", "x"}, apps::EXIT_UNREADABLE, "document element"},
      {std::string("\xFF\xFE<\0z\0o\0r\0v\0e\0l\0/\0>\0", 20), {"character", "x"}, apps::EXIT_UNREADABLE, "UTF-16"},
      {"<?xml version='1.0' encoding='Shift_JIS'?><zorvel/>", {"character", "x"}, apps::EXIT_UNREADABLE, "Shift_JIS"},
      {"<!DOCTYPE zorvel [<!ENTITY e '<character/>'>]><zorvel>&e;</zorvel>",
       {"character", "x"},
       apps::EXIT_UNREADABLE,
       "document type"}};
  for (const auto& one : cases) {
    describe(one.description);
    const Outcome outcome = add(one.arguments);
    EXPECT_EQ(outcome.status, one.status) << testing::PrintToString(one.arguments);
    EXPECT_THAT(outcome.err, HasSubstr(one.says));
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(description(), one.description);
    EXPECT_EQ(files(), std::vector<std::string>{"zorvel.xml"});
  }
  describe(good);
  fs::permissions(root() + "/zorvel.xml", fs::perms::owner_read);
  EXPECT_THAT(add({"character", "x"}).err, HasSubstr("write-protected"));
  EXPECT_EQ(description(), good);
}

TEST_F(AuthorCommands, AddNamesTheFilesThatAreStillNeededUntilTheyAreThere) {
  ASSERT_EQ(run({"init", root()}).status, apps::EXIT_CLEAN);
  EXPECT_THAT(add({"clothing", "formal"}).out,
              HasSubstr("Still to be put into " + root() +
                        ":\n"
                        "  mannequin/previews/preview_formal.png    picture, 110 x 330 pixels\n"
                        "  mannequin/previews/formal_standing.png   picture, 100 x 300 pixels\n"
                        "  mannequin/formal/formal_standing.vrmesh  mesh of the clothing in the pose\n"
                        "  mannequin/formal/plain.png               picture, 100 x 300 pixels\n"
                        "  mannequin/formal/materials.mat           library that holds the material \"Mannequin "
                        "Formal Plain\"\n"));
  ASSERT_EQ(add({"category", "bags", "--multiple"}).status, apps::EXIT_CLEAN);
  ASSERT_EQ(add({"asset", "scarf", "--type", "specific"}).status, apps::EXIT_CLEAN);
  EXPECT_THAT(add({"asset", "bench", "--type", "global"}).out, HasSubstr("global_assets/bench/asset.vrmesh"));
  const std::string reference = add({"asset", "my_bench", "--global", "bench"}).out;
  EXPECT_THAT(reference, HasSubstr("1 row of the AssetMatrix"));
  EXPECT_THAT(reference, Not(HasSubstr("Still")));
  ASSERT_EQ(add({"asset", "lamp", "--no-rows"}).status, apps::EXIT_CLEAN);
  // Letter case does not count on disk.
  folder_.write("people/mannequin/Walking/POSE.vrmesh", "x");
  const std::string pose = add({"pose", "walking"}).out;
  EXPECT_THAT(pose, Not(HasSubstr("pose.vrmesh")));
  for (const char* file : {"leisure/leisure_walking.vrmesh", "previews/formal_walking.png", "scarf/walking.vrmesh"}) {
    EXPECT_THAT(pose, HasSubstr(std::string("  mannequin/") + file));
  }
  EXPECT_THAT(description(), HasSubstr(R"(<matrix poseID="walking" assetID="my_bench" xpos="0")"));
  EXPECT_THAT(description(), Not(HasSubstr(R"(assetID="scarf")")));
  EXPECT_THAT(description(), Not(HasSubstr(R"(assetID="lamp")"))) << "it is not in every other pose";
  const std::string style = add({"style", "leisure_blue2", "--clothing", "leisure", "--preview", "blue.png",
                                 "--material", "Mannequin Leisure Blue"})
                                .out;
  EXPECT_THAT(style, Not(HasSubstr("Still"))) << "picture and material are those of another style";
}

TEST_F(AuthorCommands, DoctorNamesWhatIsNotWellAndWhatToDo) {
  ASSERT_EQ(run({"init", root()}).status, apps::EXIT_CLEAN);
  const support::LocalAppData settings;
  const auto problems = [](const std::vector<std::string>& arguments) {
    const Outcome outcome = run(arguments);
    const auto json = nlohmann::json::parse(outcome.out);
    std::string names;
    for (const auto& check : json["checks"]) {
      EXPECT_EQ(check["good"].get<bool>(), !check.contains("remedy"));
      if (!check["good"].get<bool>()) names += check["name"].get<std::string>() + ";";
    }
    EXPECT_EQ(outcome.status, names.empty() ? apps::EXIT_CLEAN : apps::EXIT_FINDINGS);
    EXPECT_EQ(json["good"].get<bool>(), names.empty());
    return names;
  };
  EXPECT_EQ(problems({"doctor", root(), "--json"}), "");
  // The file is Latin-1, and the folder's name has a letter beyond ASCII.
  std::string path = root();
  path.replace(path.find("\xC3\xAB"), 2, "\xEB");
  settings.folder().write("zorvel.ini", path + "\\");
  EXPECT_EQ(problems({"doctor", "--json"}), "");
  settings.folder().write("zorvel.ini", path);
  EXPECT_EQ(problems({"doctor", "--json"}), "settings;") << "no texture is found without the separator";
  settings.folder().write("zorvel.ini", "C:\\gone\\");
  EXPECT_EQ(problems({"doctor", root() + "/maps", "--json"}), "settings;repository;");
  EXPECT_THAT(run({"doctor"}).out, HasSubstr("problem  settings"));
}

}  // namespace
