#pragma once

namespace cli {

/// What the shell is told; documented in every help text.
enum ExitStatus { EXIT_CLEAN = 0, EXIT_FINDINGS = 1, EXIT_USAGE = 2, EXIT_UNREADABLE = 3, EXIT_INTERNAL = 4 };

}  // namespace cli
