#pragma once

#include "apps/cli/CreateOptions.h"

namespace cli {

/// Builds the chosen character in a new scene, says what was built, shared and left out, and writes the files that were
/// asked for. Answers an exit status.
int runCreate(const CreateOptions& options);

}  // namespace cli
