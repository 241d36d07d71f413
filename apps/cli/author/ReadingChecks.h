#pragma once

#include <filesystem>

#include "apps/cli/author/Check.h"

namespace cli {

/// Writes one file of each form that a repository holds into a temporary folder, and reads it again; which forms of
/// pictures Qt reads.
Checks checkReading();

/// Whether there is a repository in the folder that can be read and added to.
Check checkRepository(const std::filesystem::path& folder);

}  // namespace cli
