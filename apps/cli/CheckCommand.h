#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace cli {

struct CheckCommandOptions {
  std::vector<std::filesystem::path> repositories;
  /// "text", "json", "sarif", "junit" or "csv".
  std::string format = "text";
  /// Which clothing builds in which pose, in place of the findings; as "text", "json" or "csv".
  bool showsMatrix = false;
  /// Empty for standard output.
  std::filesystem::path output;
  /// No finding of the text is folded away.
  bool showsAll = false;
  /// Codes or names of rules.
  std::vector<std::string> ignored;
  std::vector<std::string> only;
  /// CODE=LEVEL.
  std::vector<std::string> severities;
  std::optional<std::string> failOn;
  std::optional<std::string> targetRoot;
  /// "always", "never" or "auto".
  std::string color = "auto";
  /// Whether the file beside each description is read.
  bool readsConfiguration = true;
};

/// Checks the repositories and reports what was found. Answers an exit status.
int runCheck(const CheckCommandOptions& options);

/// The worst of what became of the repositories.
int statusOf(const std::vector<check::JudgedRepository>& repositories);

}  // namespace cli
