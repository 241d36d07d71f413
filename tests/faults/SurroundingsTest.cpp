#include <gmock/gmock.h>

#include <algorithm>

#include "tests/check/CompleteRepository.h"
#include "tests/faults/Programs.h"
#include "tests/faults/Subject.h"

namespace {

using support::Ending;
using testing::HasSubstr;
using testing::StartsWith;

std::size_t linesOf(const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

/// What a program finds around it: standard streams, a folder for temporary files, names of folders.
class Surroundings : public testing::Test {
 protected:
  Surroundings() : subject_(folder_.makeFolder("run")) {}

  /// By way of the shell, which gives it other streams.
  Ending run(const std::vector<std::string>& arguments, const std::string& streams) {
    std::vector<std::string> command = {"/bin/sh", "-c", "exec \"$@\" " + streams, "sh"};
    for (const std::string& argument : support::zorvel(arguments)) command.push_back(argument);
    return subject_.run(command, {});
  }
  Ending runWithoutTemporary(const std::vector<std::string>& arguments) {
    std::vector<std::string> command = {"/usr/bin/env", "TMPDIR=/proc/nowhere"};
    for (const std::string& argument : support::zorvel(arguments)) command.push_back(argument);
    return subject_.run(command, {});
  }
  std::string root() const { return repository_.folder().path().string(); }

  support::CompleteRepository repository_;
  support::TemporaryFolder folder_;
  support::Subject subject_;
};

TEST_F(Surroundings, StandardOutputThatIsFullOrClosedIsAFailureOfEveryCommand) {
  for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{{"list", root()},
                                                                                       {"list", root(), "--json"},
                                                                                       {"check", root()},
                                                                                       {"explain", root(), "coat"},
                                                                                       {"rules"},
                                                                                       {"create", root()},
                                                                                       {"doctor", root()},
                                                                                       {"init", "@new"},
                                                                                       {"--help"},
                                                                                       {"--version"}}) {
    for (const char* streams : {">/dev/full", ">&-"}) {
      const Ending ending = run(command, streams);
      EXPECT_EQ(ending.status, 4) << testing::PrintToString(command) << streams;
      EXPECT_THAT(ending.err, StartsWith("zorvel: cannot write to standard output: "));
      EXPECT_EQ(linesOf(ending.err), 1U) << ending.err;
    }
  }
}

TEST_F(Surroundings, StreamsThatAreClosedAreNotTakenByResults) {
  const Ending ending = run({"create", root(), "--json", "@anna.json", "--gltf", "@anna.glb"}, "<&- >&- 2>&-");
  EXPECT_EQ(ending.status, 4);
  EXPECT_THAT(ending.results.at("anna.json"), StartsWith("{"));
  EXPECT_THAT(ending.results.at("anna.glb"), StartsWith("glTF"));
  EXPECT_THAT(ending.results.at("anna.json"), testing::Not(HasSubstr("Wrote")));
}

TEST_F(Surroundings, WithoutATemporaryFolderWhatNeedsNoneWorksAndTheRestSaysSo) {
  for (const std::vector<std::string>& command : std::vector<std::vector<std::string>>{
           {"list", root()},
           {"check", root()},
           {"explain", root(), "coat"},
           {"create", root(), "--json", "@a.json", "--picture", "@a.png", "--width", "32", "--height", "32"}}) {
    const Ending ending = runWithoutTemporary(command);
    EXPECT_EQ(ending.status, 0) << testing::PrintToString(command) << ending.err;
  }
  const Ending init = runWithoutTemporary({"init", "@new"});
  EXPECT_EQ(init.status, 4);
  EXPECT_EQ(init.err, "zorvel init: No temporary folder can be made.\n");
  EXPECT_EQ(runWithoutTemporary({"doctor"}).status, 1);
}

TEST_F(Surroundings, AnEmptyNameOfAFolderIsNoInternalError) {
  const struct {
    std::vector<std::string> command;
    int status;
  } cases[] = {{{"list", ""}, 3},
               {{"check", ""}, 3},
               {{"explain", "", "coat"}, 3},
               {{"create", ""}, 3},
               {{"add", "", "skin", "light"}, 3},
               {{"init", ""}, 2},
               {{"sample", ""}, 2},
               {{"create", root(), "--json", ""}, 0},
               {{"create", root(), "--into", ""}, 0}};
  for (const auto& one : cases) {
    const Ending ending = run(one.command, "");
    EXPECT_EQ(ending.status, one.status) << testing::PrintToString(one.command) << ending.err;
    if (one.status != 0) {
      EXPECT_THAT(ending.err + ending.out, testing::Not(HasSubstr("internal error")));
      EXPECT_FALSE((ending.err + ending.out).empty());
    }
  }
}

}  // namespace
