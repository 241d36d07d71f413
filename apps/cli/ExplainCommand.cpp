#include "apps/cli/ExplainCommand.h"

#include <algorithm>
#include <iostream>

#include "apps/cli/StandardOutput.h"
#include "apps/support/ExitStatus.h"
#include "check/explain/Explain.h"
#include "check/report/ExplainReport.h"
#include "host/files/PrintableText.h"

namespace cli {

using namespace apps;

namespace {

int failExplain(const std::string& error, int status) {
  host::printLine(std::cerr, "zorvel explain: " + error);
  return status;
}

}  // namespace

int runExplain(const std::filesystem::path& repository, const std::string& id, bool asJson) {
  const check::ExplainResult result = check::explainId(repository, id);
  if (!result.isReadable) {
    return failExplain(repository.string() + ": " + result.problem, EXIT_UNREADABLE);
  }
  if (result.explanations.empty() && !asJson) {
    std::cerr << "zorvel explain: " << check::explainText(result);
    return EXIT_FINDINGS;
  }
  writeStandardOutput(asJson ? check::explainJson(result) : check::explainText(result));
  const auto& all = result.explanations;
  const bool isGood = !all.empty() && std::all_of(all.begin(), all.end(), [](const auto& one) { return one.works; });
  return isGood ? EXIT_CLEAN : EXIT_FINDINGS;
}

}  // namespace cli
