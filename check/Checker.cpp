#include "check/Checker.h"

#include "check/CheckRun.h"
#include "check/rules/WearTables.h"

namespace check {

CheckResult checkRepository(const std::filesystem::path& root, const CheckerOptions& options) {
  CheckRun run(root, options);
  // One that is refused for its size may have too many to be shown.
  if (options.wantsWear && run.result().isReadable)
    run.result().wear = WearTables(run.survey(), run.result().findings).make();
  if (options.wantsFiles) run.result().files = run.files();
  return std::move(run.result());
}

}  // namespace check
