#pragma once

#include "apps/cli/author/Check.h"

namespace cli {

/// What the program was built from and with.
Checks checkVersions();

/// Temporary folder, settings with the repository that they hold, current folder.
Checks checkFolders();

/// Whether the module that the stage loads lies beside the program.
Check checkModule();

}  // namespace cli
