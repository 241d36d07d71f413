#include "tests/cli/RunCommand.h"

#include <gtest/gtest.h>

#include "apps/cli/CommandLine.h"

namespace support {

Outcome run(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "zorvel");
  std::vector<const char*> argv;
  for (const std::string& argument : arguments) argv.push_back(argument.c_str());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  Outcome outcome;
  outcome.status = cli::run(static_cast<int>(argv.size()), argv.data());
  outcome.out = testing::internal::GetCapturedStdout();
  outcome.err = testing::internal::GetCapturedStderr();
  return outcome;
}

}  // namespace support
