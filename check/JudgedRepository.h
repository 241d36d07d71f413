#pragma once

#include <vector>

#include "check/Finding.h"

namespace check {

/// A checked repository as the options want it told; what all reports are made from.
struct JudgedRepository {
  /// With severities as the options have them, without what they ignore.
  CheckResult result;
  int ignoredCount = 0;
  /// In the order of the codes.
  std::vector<RuleId> askedRules;
  /// Something is at least as bad as what the options want to fail on.
  bool hasFailed = false;
};

}  // namespace check
