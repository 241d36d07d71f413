#pragma once

namespace apps {

/// What the shell is told; documented in every help text.
enum ExitStatus {
  EXIT_CLEAN = 0,
  EXIT_FINDINGS = 1,
  EXIT_USAGE = 2,
  EXIT_UNREADABLE = 3,
  EXIT_INTERNAL = 4  ///< or a result that could not be written
};

}  // namespace apps
