#pragma once

#include <map>
#include <string>
#include <vector>

#include "tests/faults/Subject.h"
#include "tests/faults/Verdict.h"

namespace support {

/// One kind of thing that goes wrong, at every place in turn.
struct WalkedFault {
  std::string name;
  Fault fault;
};

/// What came of a walk.
struct WalkResult {
  /// Places where it can go wrong, and at how many of them it did.
  unsigned long places = 0;
  unsigned long tried = 0;
  /// Calls that are told apart and not tried.
  unsigned long ofOthers = 0;
  /// How many runs ended with each status.
  std::map<int, unsigned long> statuses;
  /// Each with the place and the last line that the program wrote.
  std::vector<std::string> faults;
};

/// Runs a command once undisturbed and then with the fault at one place after the other: all of them, or every k-th
/// where there are more than `most`.
WalkResult walk(const std::vector<std::string>& command, const WalkedFault& walked, unsigned long most,
                Strictness strictness = Strictness::Same);

/// What FAULT_PLACES says, the number of places of each walk; 0 for all.
unsigned long mostPlaces();

}  // namespace support
