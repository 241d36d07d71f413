#include "apps/cli/CheckCommand.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

#include <cstdlib>
#include <nlohmann/json.hpp>

#include "apps/cli/CommandLine.h"
#include "apps/cli/TerminalColor.h"
#include "apps/support/ExitStatus.h"
#include "check/JudgementFile.h"
#include "tests/cli/ProgramRun.h"
#include "tests/support/SmallRepository.h"

namespace {

using support::Outcome;
using support::run;
using testing::HasSubstr;
using testing::StartsWith;
using Json = nlohmann::json;

class CheckCommand : public testing::Test {
 protected:
  std::string root() const { return repository_.folder().path().string(); }
  support::SmallRepository repository_;
  support::TemporaryFolder out_;
};

TEST_F(CheckCommand, RefusesOptionsThatItDoesNotUnderstandInOneLine) {
  const struct {
    std::vector<std::string> options;
    const char* says;
  } cases[] = {
      {{"--ignore", "ZV999"}, "zorvel check: --ignore: there is no rule \"ZV999\"; nearest: ZV"},
      {{"--only", "unknown-atribute"},
       "zorvel check: --only: there is no rule \"unknown-atribute\"; nearest: unknown-a"},
      {{"--severity", "ZV113"}, "zorvel check: --severity: \"ZV113\" is not of the form CODE=LEVEL"},
      {{"--severity", "ZV113=bad\x1b"}, "zorvel check: --severity: \"bad\\x1b\" is none of error, warning, hint, off"},
      {{"--fail-on", "always"}, "zorvel check: --fail-on: \"always\" is none of error, warning, hint, never"}};
  for (const auto& one : cases) {
    std::vector<std::string> arguments = {"check", root()};
    arguments.insert(arguments.end(), one.options.begin(), one.options.end());
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, apps::EXIT_USAGE);
    EXPECT_THAT(outcome.err, StartsWith(one.says));
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << "one line";
    EXPECT_EQ(outcome.out, "");
  }
  EXPECT_EQ(run({"check"}).status, apps::EXIT_USAGE);
  EXPECT_EQ(run({"check", root(), "--format", "pdf"}).status, apps::EXIT_USAGE);
  EXPECT_EQ(run({"check", root(), "--color", "red"}).status, apps::EXIT_USAGE);
  EXPECT_EQ(run({"rules", "--format", "sarif"}).status, apps::EXIT_USAGE);
}

TEST_F(CheckCommand, ReadsTheFileBesideTheDescriptionUnlessToldNotTo) {
  repository_.folder().write(check::JUDGEMENT_FILE, R"({"failOn": "sometimes"})");
  const Outcome outcome = run({"check", root()});
  EXPECT_EQ(outcome.status, apps::EXIT_UNREADABLE);
  EXPECT_EQ(outcome.err, "zorvel check: " + root() +
                             "/.zorvel-check.json: failOn: \"sometimes\" is none of error, warning, hint, never\n");
  EXPECT_EQ(outcome.out, "");
  EXPECT_NE(run({"check", root(), "--no-config"}).status, apps::EXIT_UNREADABLE);
  repository_.folder().write(check::JUDGEMENT_FILE, R"({"failOn": "never"})");
  EXPECT_EQ(run({"check", root()}).status, apps::EXIT_CLEAN);
}

TEST_F(CheckCommand, WritesEachFormatToStandardOutputOrWholeIntoAFile) {
  const auto report = [&](const std::string& format) {
    // Options between and behind the folders are no folders.
    const Outcome outcome = run({"check", "--ignore", "ZV113", root(), "--format", format, "--only", "ZV118", root()});
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
  };
  EXPECT_EQ(Json::parse(report("json"))["repositories"].size(), 2U);
  EXPECT_EQ(Json::parse(report("sarif"))["version"], "2.1.0");
  EXPECT_THAT(report("junit"), StartsWith("<?xml"));
  EXPECT_THAT(report("csv"), StartsWith("repository,"));
  EXPECT_THAT(report("text"), HasSubstr("2 repositories: "));
  const std::string file = (out_.path() / "report.json").string();
  const Outcome outcome = run({"check", root(), "--format", "json", "--output", file});
  EXPECT_EQ(outcome.out, "");
  EXPECT_EQ(Json::parse(out_.read("report.json"))["repositories"][0]["root"], root());
  const Outcome nowhere = run({"check", root(), "--output", (out_.path() / "none/report").string()});
  EXPECT_EQ(nowhere.status, apps::EXIT_INTERNAL);
  EXPECT_THAT(nowhere.err, StartsWith("zorvel check: cannot write \""));
}

TEST_F(CheckCommand, SaysWhenStandardOutputCannotBeWritten) {
  repository_.writePictures();
  const auto statusTo = [](int descriptor, const std::vector<std::string>& arguments) {
    std::fflush(stdout);
    const int before = ::dup(STDOUT_FILENO);
    ::dup2(descriptor, STDOUT_FILENO);
    ::close(descriptor);
    testing::internal::CaptureStderr();
    std::vector<const char*> argv = {"zorvel"};
    for (const std::string& argument : arguments) argv.push_back(argument.c_str());
    const int status = cli::run(static_cast<int>(argv.size()), argv.data());
    EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("cannot write to standard output: "));
    std::clearerr(stdout);
    ::dup2(before, STDOUT_FILENO);
    ::close(before);
    return status;
  };
  const auto closedPipe = [] {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    return ends[1];
  };
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"check", root()},
                                                    {"rules"},
                                                    {"list", root()},
                                                    {"list", root(), "--json"},
                                                    {"create", root()},
                                                    {"explain", root(), "k1"},
                                                    {"doctor"},
                                                    {"--help"},
                                                    {"--version"}}) {
    EXPECT_EQ(statusTo(closedPipe(), arguments), apps::EXIT_INTERNAL);
    EXPECT_EQ(statusTo(::open("/dev/full", O_WRONLY), arguments), apps::EXIT_INTERNAL);
  }
}

TEST_F(CheckCommand, ExitsWithTheWorstThatBecameOfTheRepositories) {
  check::JudgedRepository clean;
  check::JudgedRepository failed;
  failed.hasFailed = true;
  check::JudgedRepository unreadable = failed;
  unreadable.result.isReadable = false;
  EXPECT_EQ(cli::statusOf({clean}), apps::EXIT_CLEAN);
  EXPECT_EQ(cli::statusOf({clean, failed, clean}), apps::EXIT_FINDINGS);
  EXPECT_EQ(cli::statusOf({unreadable, failed}), apps::EXIT_UNREADABLE);
}

TEST_F(CheckCommand, ColorsATerminalOnlyAndNotWhenItsUserSaysNo) {
  int terminal = -1;
  int other = -1;
  ASSERT_EQ(::openpty(&other, &terminal, nullptr, nullptr, nullptr), 0);
  const auto isColored = [&](const char* when, const char* noColor, const char* term) {
    ::setenv("NO_COLOR", noColor, 1);
    ::setenv("TERM", term, 1);
    return cli::usesColor(when, terminal);
  };
  EXPECT_TRUE(isColored("auto", "", "xterm"));
  EXPECT_FALSE(isColored("auto", "1", "xterm"));
  EXPECT_FALSE(isColored("auto", "", "dumb"));
  EXPECT_TRUE(isColored("always", "1", "dumb"));
  EXPECT_FALSE(isColored("never", "", "xterm"));
  ::unsetenv("NO_COLOR");
  ::close(terminal);
  ::close(other);
  EXPECT_FALSE(cli::usesColor("auto", -1)) << "a file";
  EXPECT_THAT(run({"check", root(), "--color=always"}).out, HasSubstr("\x1b["));
  EXPECT_THAT(run({"check", root()}).out, testing::Not(HasSubstr("\x1b[")));
}

TEST_F(CheckCommand, PrintsTheRules) {
  EXPECT_THAT(run({"rules"}).out, StartsWith("ZV101  error  description-missing\n"));
  EXPECT_THAT(run({"rules", "--format", "md"}).out, StartsWith("# Rules of `zorvel check`\n"));
  EXPECT_EQ(Json::parse(run({"rules", "--format", "json"}).out)[0]["code"], "ZV101");
}

}  // namespace
