#pragma once

#include <string>
#include <vector>

#include "tests/check/CompleteRepository.h"

namespace support {

/// One way in which a repository may grow without end.
struct GrowthCase {
  const char* name;
  /// How many of them a moment's work are.
  int count;
  /// Makes the repository, which is complete, have so many.
  void (*grow)(const CompleteRepository& repository, int count);
  /// What is run on it; the folder is put behind the first word.
  std::vector<std::string> commands = {"list --json", "check", "create"};
};

const std::vector<GrowthCase>& growthCases();

}  // namespace support
