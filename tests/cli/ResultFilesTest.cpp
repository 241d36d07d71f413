#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/support/ExitStatus.h"
#include "tests/cli/ProgramRun.h"
#include "tests/support/SmallRepository.h"

namespace {

namespace fs = std::filesystem;
using support::Outcome;
using support::run;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class ResultFiles : public testing::Test {
 protected:
  ResultFiles() {
    repository_.mend();
    repository_.writePictures();
  }
  fs::path inRepository(const std::string& name) const { return repository_.folder().path() / name; }
  fs::path out(const std::string& name) const { return out_.path() / name; }
  Outcome create(const std::vector<std::string>& more) const { return command("create", more); }
  Outcome command(const std::string& name, const std::vector<std::string>& more) const {
    std::vector<std::string> arguments = {name, repository_.folder().path().string()};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return run(arguments);
  }
  std::vector<fs::path> filesOfRepository() const {
    std::vector<fs::path> files;
    for (const auto& entry : fs::recursive_directory_iterator(repository_.folder().path())) {
      if (entry.is_regular_file()) files.push_back(entry.path().lexically_relative(repository_.folder().path()));
    }
    return files;
  }
  /// Moves it out of the repository and leaves a link to it.
  fs::path moveOut(const std::string& name) const {
    const fs::path elsewhere = fs::canonical(out_.path()) / fs::path(name).filename();
    fs::rename(inRepository(name), elsewhere);
    fs::create_symlink(elsewhere, inRepository(name));
    return elsewhere;
  }

  support::SmallRepository repository_;
  support::TemporaryFolder out_;
};

TEST_F(ResultFiles, TwoResultsInOneFileAreRefusedBeforeAnythingIsBuilt) {
  out_.write("there", "old");
  fs::create_hard_link(out("there"), out("hard"));
  fs::create_symlink("there", out("soft"));
  fs::create_symlink("new", out("dangling"));
  fs::create_directory_symlink(".", out("folder"));
  const std::pair<const char*, const char*> pairs[] = {
      {"new", "new"},    {"new", "folder/../new"}, {"new", "folder/new"}, {"there", "hard"},
      {"there", "soft"}, {"dangling", "new"},      {"Scene.x", "scene.X"}};
  for (const auto& [first, second] : pairs) {
    const Outcome outcome = create({"--gltf", out(first).string(), "--json", out(second).string()});
    EXPECT_EQ(outcome.status, apps::EXIT_USAGE) << first << ' ' << second;
    EXPECT_THAT(outcome.err, HasSubstr("--gltf and --json name the same file"));
    EXPECT_EQ(outcome.out, "");
  }
  EXPECT_EQ(out_.read("there"), "old");
  EXPECT_FALSE(fs::exists(out("new")));
  EXPECT_EQ(create({"--gltf", "/dev/null", "--json", "/dev/null"}).status, apps::EXIT_CLEAN);
}

TEST_F(ResultFiles, NoFileOfTheRepositoryIsReplaced) {
  for (const fs::path& file : filesOfRepository()) {
    const std::string before = repository_.folder().read(file);
    const std::string path = inRepository(file).string();
    for (const Outcome& outcome : {create({"--pose", "p1", "--json", path}), command("check", {"--output", path})}) {
      EXPECT_EQ(outcome.status, apps::EXIT_USAGE) << file;
      EXPECT_THAT(outcome.err, HasSubstr("a file of the repository or one that was read"));
    }
    EXPECT_EQ(repository_.folder().read(file), before) << file;
  }
  fs::create_hard_link(inRepository("zorvel.xml"), out("another name"));
  EXPECT_EQ(create({"--gltf", out("another name").string()}).status, apps::EXIT_USAGE);
  // An earlier result is replaced, wherever it lies.
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(create({"--json", inRepository("scene.json").string()}).status, apps::EXIT_CLEAN);
    EXPECT_LE(command("check", {"--output", inRepository("report.txt").string()}).status, apps::EXIT_FINDINGS);
  }
}

TEST_F(ResultFiles, NothingThatWasReadIsReplacedButTheSceneByItself) {
  const std::string scene = out("scene.json").string();
  ASSERT_EQ(create({"--json", scene}).status, apps::EXIT_CLEAN);
  EXPECT_EQ(create({"--into", scene, "--gltf", scene}).status, apps::EXIT_USAGE);
  EXPECT_THAT(out_.read("scene.json"), HasSubstr("{"));
  EXPECT_EQ(create({"--into", scene, "--json", scene}).status, apps::EXIT_CLEAN);
  const fs::path texture = moveOut("maps/skin_d.png");
  const std::string before = out_.read("skin_d.png");
  const Outcome outcome = create({"--picture", texture.string(), "--json", out("x.json").string()});
  EXPECT_EQ(outcome.status, apps::EXIT_USAGE);
  EXPECT_EQ(out_.read("skin_d.png"), before);
  EXPECT_FALSE(fs::exists(out("x.json")));
}

TEST_F(ResultFiles, WhateverCannotBeWrittenIsTheSameStatusEverywhere) {
  out_.write("locked", "old");
  fs::permissions(out("locked"), fs::perms::owner_read);
  fs::create_directory(out("folder"));
  for (const std::string& target :
       {out("locked").string(), out("folder").string(), out("none/x").string(), std::string("/dev/full")}) {
    for (const char* option : {"--json", "--gltf", "--picture"}) {
      const Outcome outcome = create({option, target, "--width", "64", "--height", "48"});
      EXPECT_EQ(outcome.status, apps::EXIT_INTERNAL) << option << ' ' << target;
      EXPECT_THAT(outcome.err, HasSubstr("zorvel create: cannot write \"" + target + "\": "));
    }
    EXPECT_EQ(command("check", {"--output", target}).status, apps::EXIT_INTERNAL) << target;
  }
  EXPECT_EQ(out_.read("locked"), "old");
}

TEST_F(ResultFiles, WhatIsReadOutsideTheRepositoryIsNamedAndNoFault) {
  EXPECT_THAT(create({}).err, Not(HasSubstr("outside")));
  EXPECT_THAT(command("list", {}).err, Not(HasSubstr("outside")));
  for (const char* name : {"maps/skin_d.png", "anna/summer/k1_p1.vrmesh", "anna/skin/skin.mat", "anna/standing"}) {
    const fs::path place = moveOut(name);
    const Outcome outcome = create({"--gltf", out("scene.glb").string()});
    EXPECT_EQ(outcome.status, apps::EXIT_CLEAN) << outcome.err;
    EXPECT_THAT(outcome.err, HasSubstr("note: read from outside the repository: " + place.string()));
  }
  moveOut("zorvel.xml");
  EXPECT_THAT(command("list", {}).err, HasSubstr("note: read from outside the repository: "));
}

TEST_F(ResultFiles, AFolderThatIsNamedOutsideAndASceneOfAnotherRepositoryAreNamedToo) {
  const support::SmallRepository other;
  other.mend();
  other.writePictures();
  ASSERT_LE(run({"create", other.folder().path().string(), "--json", out("other.json").string()}).status, 1);
  const Outcome into = create({"--into", out("other.json").string()});
  EXPECT_THAT(into.err, AllOf(HasSubstr((other.folder().path() / "anna" / "standing").string()),
                              Not(HasSubstr("repository: " + out("other.json").string()))));
  const std::string name = other.folder().path().filename().string();
  repository_.edit(R"(name="Standing" folder="standing")",
                   R"(name="Standing" folder="..\..\)" + name + R"(\anna\standing")");
  EXPECT_THAT(create({"--pose", "p1"}).err, HasSubstr((other.folder().path() / "anna/standing/pose.vrmesh").string()));
}

}  // namespace
