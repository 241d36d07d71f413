#include "apps/cli/StandardOutput.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <system_error>
#include <utility>

namespace cli {

namespace {

/// 0 when all has arrived.
int firstError = 0;

void note(bool isWritten) {
  if (!isWritten && firstError == 0) firstError = errno != 0 ? errno : EIO;
}

}  // namespace

ClosedPipesAreErrors::ClosedPipesAreErrors() : before_(std::signal(SIGPIPE, SIG_IGN)) {}
ClosedPipesAreErrors::~ClosedPipesAreErrors() { std::signal(SIGPIPE, before_); }

void writeStandardOutput(std::string_view text) {
  std::cout.flush();
  errno = 0;
  note(std::fwrite(text.data(), 1, text.size(), stdout) == text.size());
}

std::string finishStandardOutput() {
  errno = 0;
  std::cout.flush();
  note(std::fflush(stdout) == 0 && std::cout.good() && std::ferror(stdout) == 0);
  std::cout.clear();
  std::clearerr(stdout);
  const int error = std::exchange(firstError, 0);
  return error == 0 ? std::string() : "cannot write to standard output: " + std::generic_category().message(error);
}

}  // namespace cli
