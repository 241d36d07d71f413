#include "apps/cli/RulesCommand.h"

#include "apps/cli/StandardOutput.h"
#include "apps/support/ExitStatus.h"
#include "check/report/RulesDocument.h"
#include "check/report/RulesReport.h"

namespace cli {

using namespace apps;

int runRules(const std::string& format) {
  writeStandardOutput(format == "md"     ? check::rulesDocument()
                      : format == "json" ? check::rulesJson()
                                         : check::rulesText());
  return EXIT_CLEAN;
}

}  // namespace cli
