#include "tests/growth/GrowthTable.h"

#include <cstdio>
#include <sstream>

namespace support {

namespace {

/// n log n for four times as many, and what a busy machine adds.
constexpr double MOST_GROWTH = 5.5;
/// Below it, starting the program is most of what is measured.
constexpr double FLOOR_SECONDS = 0.15;
constexpr double MOST_SECONDS = 10.0;
constexpr double MOST_MEBIBYTES = 512.0;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool IS_SANITIZED = true;
#else
constexpr bool IS_SANITIZED = false;
#endif

Measured measure(const GrowthCase& growthCase, const std::string& command, int count) {
  const CompleteRepository repository;
  growthCase.grow(repository, count);
  std::istringstream words(command);
  std::vector<std::string> arguments;
  for (std::string word; words >> word;) arguments.push_back(word);
  arguments.insert(arguments.begin() + 1, repository.folder().path().string());
  return measureProgram(arguments);
}

std::string numberText(double number) {
  char text[32];
  std::snprintf(text, sizeof(text), "%.2f", number);
  return text;
}

std::string problemOf(const Measured& run) {
  if (run.status < 0 || run.status > 3) return "it ended with " + std::to_string(run.status) + ": " + run.text;
  if (run.status == 3 && !run.isRefusal()) return "it was refused without a word about its size: " + run.text;
  if (IS_SANITIZED) return "";
  if (run.seconds > MOST_SECONDS) return "it took " + numberText(run.seconds) + " s";
  return run.mebibytes > MOST_MEBIBYTES ? "it took " + numberText(run.mebibytes) + " MiB" : "";
}

}  // namespace

std::string GrowthRow::complaint() const {
  for (const Measured& run : {once, fourTimes}) {
    const std::string problem = problemOf(run);
    if (!problem.empty()) return problem;
  }
  if (fourTimes.seconds <= MOST_GROWTH * once.seconds + FLOOR_SECONDS) return "";
  return "four times as many took " + numberText(fourTimes.seconds) + " s instead of " + numberText(once.seconds);
}

GrowthRow measureGrowth(const GrowthCase& growthCase, const std::string& command, int scale) {
  GrowthRow row;
  row.name = growthCase.name;
  row.command = command;
  row.count = growthCase.count * scale;
  row.once = measure(growthCase, command, row.count);
  row.fourTimes = measure(growthCase, command, 4 * row.count);
  return row;
}

std::string lineOf(const GrowthRow& row) {
  const auto refusal = [](const Measured& run) { return run.status == 3 ? " refused" : ""; };
  char text[400];
  std::snprintf(text, sizeof(text), "%-34s %-14s %9d %7.2f s %6.0f MiB%s %9d %7.2f s %6.0f MiB%s", row.name.c_str(),
                row.command.c_str(), row.count, row.once.seconds, row.once.mebibytes, refusal(row.once), 4 * row.count,
                row.fourTimes.seconds, row.fourTimes.mebibytes, refusal(row.fourTimes));
  const std::string complaint = row.complaint();
  return text + (complaint.empty() ? "" : "  " + complaint);
}

}  // namespace support
