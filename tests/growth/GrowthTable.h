#pragma once

#include <string>

#include "tests/growth/GrowthCases.h"
#include "tests/growth/MeasuredRun.h"

namespace support {

/// One command on a repository with a number of something, and with four times as many.
struct GrowthRow {
  std::string name;
  std::string command;
  int count = 0;
  Measured once;
  Measured fourTimes;

  /// What is wrong: it takes more than four times as much and a little, too much memory, or ends as nothing should.
  /// Empty when nothing is.
  std::string complaint() const;
};

/// So many times the usual number of them.
GrowthRow measureGrowth(const GrowthCase& growthCase, const std::string& command, int scale);
std::string lineOf(const GrowthRow& row);

}  // namespace support
