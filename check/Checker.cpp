#include "check/Checker.h"

#include "check/CheckRun.h"
#include "check/rules/WearTables.h"

namespace check {

CheckResult checkRepository(const std::filesystem::path& root, const CheckerOptions& options) {
  CheckRun run(root, options);
  if (options.wantsWear) run.result().wear = WearTables(run.survey(), run.result().findings).make();
  return std::move(run.result());
}

}  // namespace check
