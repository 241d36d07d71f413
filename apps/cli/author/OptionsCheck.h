#pragma once

#include <string>

#include "apps/cli/author/AddOptions.h"
#include "apps/cli/author/EntryKind.h"

namespace cli {

EntryKind kindOf(const AddOptions& options);

/// Why the options make no entry in any description: one says nothing about the kind, a text is no file name where one
/// is needed, or XML cannot hold it. One line, empty for options that do.
std::string whyUnfit(const AddOptions& options);

}  // namespace cli
