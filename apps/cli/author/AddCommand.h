#pragma once

#include "apps/cli/author/AddOptions.h"

namespace cli {

/// Adds an entry to a description and prints it, with the files that it still needs. Answers an exit status: clean when
/// the entry was written, whatever is still to be put there.
int runAdd(const AddOptions& options);

}  // namespace cli
