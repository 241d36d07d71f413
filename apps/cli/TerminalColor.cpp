#include "apps/cli/TerminalColor.h"

#include <unistd.h>

#include <cstdlib>

namespace cli {

namespace {

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

}  // namespace

bool usesColor(const std::string& when, int descriptor) {
  if (when == "always") return true;
  if (when == "never" || !environment("NO_COLOR").empty() || environment("TERM") == "dumb") return false;
  return ::isatty(descriptor) == 1;
}

}  // namespace cli
