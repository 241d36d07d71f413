#pragma once

#include <string>

namespace ZORVEL {

struct BuildReport;

/// Says in one line what a build lacks; the reasons are for BuildFindings to tell.
class BuildSummary {
 public:
  BuildSummary() = delete;

  /// Without a full stop. Empty when all is well.
  static std::wstring Describe(const BuildReport& report);
};

}  // namespace ZORVEL
