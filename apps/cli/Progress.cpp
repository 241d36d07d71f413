#include "apps/cli/Progress.h"

#include <iostream>

#include "host/files/PrintableText.h"

namespace cli {

void Progress::report(double done) {
  const Clock::time_point now = Clock::now();
  if (now - last_ < std::chrono::seconds(1)) return;
  last_ = now;
  host::printLine(std::cerr, what_ + ": " + std::to_string(static_cast<int>(done * 100.0)) + " %");
}

}  // namespace cli
