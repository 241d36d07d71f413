#include "check/Checker.h"

namespace check {

CheckResult checkRepository(const std::filesystem::path& root, const CheckerOptions& /*options*/) {
  CheckResult result;
  result.root = root.string();
  return result;
}

}  // namespace check
