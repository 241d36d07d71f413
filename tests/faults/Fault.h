#pragma once

#include <string>

#include "tests/faults/library/Plan.h"

namespace support {

/// What goes wrong in a run, and where. With `from` 0 nothing does, and the calls are only counted.
struct Fault {
  /// Of faults::Kind.
  unsigned kinds = 0;
  /// Of the calls of these kinds the number of the first that is struck, from 1.
  unsigned long from = 0;
  /// How many are; 0 for all that follow.
  unsigned long count = 1;
  /// Of errno.
  int error = 0;
  /// fail, short, drop, vanish or signal, as the library takes it.
  std::string action = "fail";
  int signal = 0;
  /// Only calls on paths below this one; empty for all, "@" for the place of the run.
  std::string path;

  /// As the library takes it from its environment.
  std::string plan() const;
};

}  // namespace support
