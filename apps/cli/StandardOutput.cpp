#include "apps/cli/StandardOutput.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <system_error>

namespace cli {

namespace {

/// While it lives, a closed pipe is an error and does not end the program.
class ClosedPipesAreErrors {
 public:
  ClosedPipesAreErrors() : before_(std::signal(SIGPIPE, SIG_IGN)) {}
  ~ClosedPipesAreErrors() { std::signal(SIGPIPE, before_); }
  ClosedPipesAreErrors(const ClosedPipesAreErrors&) = delete;
  ClosedPipesAreErrors& operator=(const ClosedPipesAreErrors&) = delete;

 private:
  void (*before_)(int);
};

}  // namespace

std::string writeStandardOutput(std::string_view text) {
  const ClosedPipesAreErrors guard;
  errno = 0;
  std::cout.flush();
  const bool isWritten = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if (isWritten && std::fflush(stdout) == 0) return {};
  return "cannot write to standard output: " + std::generic_category().message(errno);
}

}  // namespace cli
