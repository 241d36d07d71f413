#pragma once

#include <string>
#include <vector>

namespace support {

/// What running the program took.
struct Measured {
  /// Negative for a signal.
  int status = 0;
  /// Of the processor, in the program and for it.
  double seconds = 0.0;
  /// At its peak.
  double mebibytes = 0.0;
  /// Both outputs; of a long one the beginning.
  std::string text;

  /// Whether it said that what it was given is too large, instead of doing it.
  bool isRefusal() const;
};

/// Runs `zorvel` in a process of its own. One that does not end is stopped after a minute of processor time.
Measured measureProgram(const std::vector<std::string>& arguments);

}  // namespace support
