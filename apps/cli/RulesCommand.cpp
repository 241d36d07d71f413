#include "apps/cli/RulesCommand.h"

#include <iostream>

#include "apps/cli/ExitStatus.h"
#include "apps/cli/StandardOutput.h"
#include "check/report/RulesDocument.h"
#include "check/report/RulesReport.h"
#include "host/files/PrintableText.h"

namespace cli {

int runRules(const std::string& format) {
  const std::string error = writeStandardOutput(format == "md"     ? check::rulesDocument()
                                                : format == "json" ? check::rulesJson()
                                                                   : check::rulesText());
  if (error.empty()) return EXIT_CLEAN;
  host::printLine(std::cerr, "zorvel rules: " + error);
  return EXIT_INTERNAL;
}

}  // namespace cli
