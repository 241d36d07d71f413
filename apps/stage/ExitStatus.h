#pragma once

namespace stage {

/// What the shell is told; documented in the help text.
enum ExitStatus { EXIT_CLEAN = 0, EXIT_FINDINGS = 1, EXIT_USAGE = 2, EXIT_UNREADABLE = 3, EXIT_INTERNAL = 4 };

}  // namespace stage
