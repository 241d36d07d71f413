#include "apps/cli/CheckCommand.h"

#include <unistd.h>

#include <algorithm>
#include <iostream>

#include "apps/cli/Progress.h"
#include "apps/cli/ResultFiles.h"
#include "apps/cli/StandardOutput.h"
#include "apps/cli/TerminalColor.h"
#include "apps/support/ExitStatus.h"
#include "check/Checker.h"
#include "check/Judgement.h"
#include "check/JudgementFile.h"
#include "check/report/CsvReport.h"
#include "check/report/JsonReport.h"
#include "check/report/JunitReport.h"
#include "check/report/SarifReport.h"
#include "check/report/TextReport.h"
#include "check/report/WearReport.h"
#include "host/files/PrintableText.h"
#include "host/files/WholeFile.h"

namespace cli {

using namespace apps;

namespace {

using check::JudgedRepository;
using check::Judgement;

int fail(const std::string& error, int status) {
  host::printLine(std::cerr, "zorvel check: " + error);
  return status;
}

std::string takeSeverity(const std::string& text, Judgement& judgement) {
  const std::size_t equals = text.find('=');
  if (equals == std::string::npos) return '"' + text + "\" is not of the form CODE=LEVEL";
  return judgement.setSeverity(text.substr(0, equals), text.substr(equals + 1));
}

/// Answers an empty text, or what is wrong with the options.
std::string take(const CheckCommandOptions& options, Judgement& judgement) {
  if (options.showsMatrix && (options.format == "sarif" || options.format == "junit")) {
    return "--matrix: there is no " + options.format + " of it; use text, json or csv";
  }
  const auto each = [](const char* name, const std::vector<std::string>& texts, const auto& takeOne) {
    for (const std::string& text : texts) {
      const std::string error = takeOne(text);
      if (!error.empty()) return std::string(name) + ": " + error;
    }
    return std::string();
  };
  std::string error =
      each("--severity", options.severities, [&](const auto& text) { return takeSeverity(text, judgement); });
  // What is ignored is so, whatever severity it is given besides.
  if (error.empty())
    error = each("--ignore", options.ignored, [&](const auto& rule) { return judgement.ignore(rule); });
  if (error.empty()) error = each("--only", options.only, [&](const auto& rule) { return judgement.askFor(rule); });
  if (error.empty() && options.failOn) {
    error = each("--fail-on", {*options.failOn}, [&](const auto& text) { return judgement.setFailOn(text); });
  }
  if (options.targetRoot) judgement.setTargetRoot(*options.targetRoot);
  return error;
}

/// What counts for each repository; or the first error.
std::string takeFiles(const CheckCommandOptions& options, const Judgement& line, std::vector<Judgement>& judgements) {
  for (const std::filesystem::path& repository : options.repositories) {
    Judgement file;
    const std::string error = options.readsConfiguration ? check::readJudgement(repository, file) : "";
    if (!error.empty()) return error;
    judgements.push_back(line.over(file));
  }
  return {};
}

ResultFiles resultsOf(const CheckCommandOptions& options) {
  ResultFiles results;
  results.add("--output", options.output);
  return results;
}

JudgedRepository checkOne(const std::filesystem::path& repository, const Judgement& judgement,
                          const CheckCommandOptions& line) {
  Progress progress("Checking " + repository.string());
  check::CheckerOptions options;
  options.targetRoot = judgement.targetRoot();
  options.wantsWear = line.showsMatrix;
  options.wantsFiles = resultsOf(line).mayReplaceIn(repository);
  options.progress = [&progress](double done) { progress.report(done); };
  return judgement.judge(check::checkRepository(repository, options));
}

std::string matrixOf(const std::vector<JudgedRepository>& repositories, const CheckCommandOptions& options) {
  if (options.format == "json") return check::wearJson(repositories);
  if (options.format == "csv") return check::wearCsv(repositories);
  return check::wearText(repositories, options.showsAll);
}

std::string reportOf(const std::vector<JudgedRepository>& repositories, const CheckCommandOptions& options) {
  if (options.showsMatrix) return matrixOf(repositories, options);
  if (options.format == "json") return check::jsonReport(repositories);
  if (options.format == "sarif") return check::sarifReport(repositories);
  if (options.format == "junit") return check::junitReport(repositories);
  if (options.format == "csv") return check::csvReport(repositories);
  const int descriptor = options.output.empty() ? STDOUT_FILENO : -1;
  return check::textReport(repositories, {options.showsAll, usesColor(options.color, descriptor)});
}

}  // namespace

int statusOf(const std::vector<JudgedRepository>& repositories) {
  const auto any = [&repositories](const auto& is) {
    return std::any_of(repositories.begin(), repositories.end(), is);
  };
  if (any([](const JudgedRepository& one) { return !one.result.isReadable; })) return EXIT_UNREADABLE;
  return any([](const JudgedRepository& one) { return one.hasFailed; }) ? EXIT_FINDINGS : EXIT_CLEAN;
}

int runCheck(const CheckCommandOptions& options) {
  Judgement line;
  std::string error = take(options, line);
  if (!error.empty()) return fail(error, EXIT_USAGE);
  std::vector<Judgement> judgements;
  error = takeFiles(options, line, judgements);
  if (!error.empty()) return fail(error, EXIT_UNREADABLE);
  std::vector<JudgedRepository> repositories;
  for (std::size_t i = 0; i < judgements.size(); ++i) {
    repositories.push_back(checkOne(options.repositories[i], judgements[i], options));
  }
  for (const JudgedRepository& repository : repositories) {
    error = resultsOf(options).whyTaken(repository.result.files);
    if (!error.empty()) return fail(error, EXIT_USAGE);
  }
  const std::string report = reportOf(repositories, options);
  if (options.output.empty()) {
    writeStandardOutput(report);
  } else {
    error = host::writeWholeFile(options.output, report);
  }
  return error.empty() ? statusOf(repositories) : fail(error, EXIT_INTERNAL);
}

}  // namespace cli
