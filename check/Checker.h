#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "check/Finding.h"

namespace check {

struct CheckerOptions {
  /// Where the repository will lie on the artists' machines, a Windows path: lengths are measured from there. Empty for
  /// not measured.
  std::string targetRoot;
  /// Whether the result is to have the tables of what can be worn. What each page offers is kept for that.
  bool wantsWear = false;
  /// Whether the result is to have the files that belong to the repository.
  bool wantsFiles = false;
  /// Told from 0 to 1 how far it is; may be empty.
  std::function<void(double done)> progress;
};

/// Names everything in a repository that will not show or not be built, and why. Reads, and writes nothing. There is
/// one store of repositories, so one check at a time. Never throws for what a repository holds.
CheckResult checkRepository(const std::filesystem::path& root, const CheckerOptions& options);

}  // namespace check
