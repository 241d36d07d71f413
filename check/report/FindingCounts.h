#pragma once

#include "check/Finding.h"

namespace check {

struct FindingCounts {
  int errors = 0;
  int warnings = 0;
  int hints = 0;
};

FindingCounts countsOf(const CheckResult& result);

}  // namespace check
