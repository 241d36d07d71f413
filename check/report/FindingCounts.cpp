#include "check/report/FindingCounts.h"

#include <algorithm>

namespace check {

FindingCounts countsOf(const CheckResult& result) {
  const auto count = [&result](Severity severity) {
    return static_cast<int>(std::count_if(result.findings.begin(), result.findings.end(),
                                          [severity](const Finding& one) { return one.severity == severity; }));
  };
  return {count(Severity::Error), count(Severity::Warning), count(Severity::Hint)};
}

}  // namespace check
