#pragma once

#include <string>
#include <vector>

#include "check/JudgedRepository.h"

namespace check {

struct TextReportOptions {
  /// Otherwise only the first of many findings of one rule.
  bool showsAll = false;
  /// With escapes that a terminal makes colours of.
  bool isColored = false;
};

/// For a person: the findings of each repository by rule, the worst first, with what to do; at the end the verdict.
/// Each begins with a place that terminals and editors open.
std::string textReport(const std::vector<JudgedRepository>& repositories, const TextReportOptions& options);

}  // namespace check
