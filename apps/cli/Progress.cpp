#include "apps/cli/Progress.h"

#include <iostream>

namespace cli {

void Progress::report(double done) {
  const Clock::time_point now = Clock::now();
  if (now - last_ < std::chrono::seconds(1)) return;
  last_ = now;
  std::cerr << what_ << ": " << static_cast<int>(done * 100.0) << " %\n";
}

}  // namespace cli
