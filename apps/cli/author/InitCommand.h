#pragma once

#include <filesystem>

namespace cli {

/// Writes a repository to begin with into a folder that is empty or not there, whole or not at all. Answers an exit
/// status.
int runInit(const std::filesystem::path& folder);

}  // namespace cli
