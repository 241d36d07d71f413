#include "apps/cli/SampleCommand.h"

#include <iostream>

#include "apps/cli/Progress.h"
#include "apps/support/ExitStatus.h"
#include "host/files/PrintableText.h"
#include "samples/repository/Plaza.h"
#include "samples/repository/SampleRepository.h"

namespace cli {

using namespace apps;

namespace {

int complain(const std::string& text, ExitStatus status) {
  host::printLine(std::cerr, "zorvel sample: " + text);
  return status;
}

bool holdsFiles(const std::filesystem::path& folder) {
  std::error_code error;
  return std::filesystem::exists(folder, error) && !std::filesystem::is_empty(folder, error);
}

}  // namespace

int runSample(const SampleCommandOptions& options) {
  if (options.folder.empty()) return complain("DIR needs a name.", EXIT_USAGE);
  if (holdsFiles(options.folder) && !options.force) {
    return complain(options.folder.string() + " is not empty; --force writes into it all the same.", EXIT_USAGE);
  }
  Progress progress("Writing the sample repository");
  samples::SampleOptions sample;
  sample.characters = options.characters;
  sample.seed = options.seed;
  sample.isComplete = options.complete;
  sample.contactSheets = options.contactSheets;
  std::string error =
      samples::writeSampleRepository(options.folder, sample, [&progress](double done) { progress.report(done); });
  if (error.empty()) error = samples::writePlaza(options.folder / "plaza.json");
  if (!error.empty()) return complain(error, EXIT_INTERNAL);
  host::printLine(std::cout, "Wrote " + options.folder.string());
  return EXIT_CLEAN;
}

}  // namespace cli
