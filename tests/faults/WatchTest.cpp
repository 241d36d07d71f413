#include <gmock/gmock.h>

#include <algorithm>

#include "tests/faults/Programs.h"
#include "tests/faults/Subject.h"
#include "tests/faults/TemptingRepository.h"

namespace {

using support::Ending;
using testing::IsEmpty;

bool isBelow(const std::string& path, const std::string& folder) {
  return path.compare(0, folder.size(), folder) == 0 && (path.size() == folder.size() || path[folder.size()] == '/');
}

/// What belongs to the system and its libraries: they look for it wherever they are used.
bool isOfTheSystem(const std::string& path) {
  for (const char* folder : {"/usr", "/lib", "/lib64", "/proc", "/sys", "/etc/fonts", "/etc/ld.so.cache",
                             "/var/cache/fontconfig", "/dev/null", "/dev/urandom", PROGRAM_FOLDER}) {
    if (isBelow(path, folder)) return true;
  }
  return path.find('/') == std::string::npos;
}

class Watch : public testing::Test {
 protected:
  Watch() : subject_(folder_.makeFolder("watched")) {}

  /// The command with what it opened, wrote, started and called.
  Ending run(std::vector<std::string> command) {
    watched_.clear();
    return subject_.run(command, {}, &watched_);
  }

  /// What was done in a way of its own letter, outside of the folders.
  std::vector<std::string> doneOutside(const std::string& ways, const std::vector<std::string>& folders) const {
    std::vector<std::string> result;
    for (const std::string& line : watched_) {
      const std::string path = line.substr(2);
      const bool isInside =
          std::any_of(folders.begin(), folders.end(), [&](const std::string& one) { return isBelow(path, one); });
      if (ways.find(line.front()) != std::string::npos && !isInside && !isOfTheSystem(path)) result.push_back(line);
    }
    return result;
  }

  /// As it was named where it is relative to the folder in which the program was started.
  std::string asNamed(const std::string& path) const {
    const std::string started = subject_.folder().string() + '/';
    return path.compare(0, started.size(), started) == 0 ? path.substr(started.size()) : path;
  }

  /// That it started nothing, called nobody, wrote nothing but results, and named what it opened outside of its input.
  void expectHonest(const Ending& ending, const std::vector<std::string>& given) {
    EXPECT_TRUE(ending.isInTime);
    EXPECT_EQ(ending.signal, 0);
    EXPECT_LE(ending.status, 4);
    std::vector<std::string> written = {subject_.results().string(), subject_.temporary().string()};
    EXPECT_THAT(doneOutside("XSL", {}), IsEmpty()) << "started, called or loaded";
    EXPECT_THAT(doneOutside("WNDU", written), IsEmpty()) << "written";
    written.insert(written.end(), given.begin(), given.end());
    for (const std::string& line : doneOutside("R", written)) {
      EXPECT_THAT(ending.out + ending.err, testing::HasSubstr(asNamed(line.substr(2)))) << "opened and not named";
    }
    EXPECT_THAT(ending.leftOver, IsEmpty());
  }

  support::TemporaryFolder folder_;
  support::Subject subject_;
  support::TemptingRepository repository_;
  std::vector<std::string> watched_;
};

TEST_F(Watch, NoCommandDoesWhatAStrangersRepositoryWants) {
  const std::string root = repository_.root().string();
  for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{
           {"list", root},
           {"list", root, "--json"},
           {"check", root},
           {"check", root, "--format", "sarif", "--output", "@check.sarif"},
           {"explain", root, "coat"},
           {"create", root, "--picture", "@a.png", "--width", "64", "--height", "64", "--gltf", "@a.glb", "--json",
            "@a.json"},
           {"create", root, "--cloth", "dress", "--pose", "sitting", "--gltf", "@b.glb"}}) {
    SCOPED_TRACE(testing::PrintToString(command));
    const Ending ending = run(support::zorvel(command));
    EXPECT_LE(ending.status, 1) << ending.err;
    expectHonest(ending, {root});
  }
}

TEST_F(Watch, EntitiesOfADescriptionAreNotFetched) {
  const std::string root = repository_.withEntities().string();
  for (const char* command : {"list", "check", "create"}) {
    SCOPED_TRACE(command);
    const Ending ending = run(support::zorvel({command, root}));
    EXPECT_LE(ending.status, 3) << ending.out;
    EXPECT_THAT(ending.out + ending.err, testing::Not(testing::HasSubstr("secret")));
    expectHonest(ending, {root});
  }
}

TEST_F(Watch, ASceneFileThatIsBuiltIntoNamesWhatItOpens) {
  const support::CompleteRepository plain;
  const std::string root = plain.folder().path().string();
  const Ending first = run(support::zorvel({"create", root, "--json", "@plain.json"}));
  ASSERT_EQ(first.status, 0) << first.err;
  repository_.writeScene(first.results.at("plain.json"));
  const std::string scene = repository_.scene().string();
  const Ending ending = run(support::zorvel(
      {"create", root, "--into", scene, "--picture", "@a.png", "--width", "64", "--height", "64", "--gltf", "@a.glb"}));
  EXPECT_EQ(ending.status, 1) << ending.err;
  expectHonest(ending, {root, scene});
}

TEST_F(Watch, TheWindowDoesNotEither) {
  const Ending ending = run(support::window(repository_.root().string()));
  expectHonest(ending, {repository_.root().string(), repository_.secrets().string()});
}

}  // namespace
