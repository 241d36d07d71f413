#pragma once

#include <filesystem>

namespace bench {

/// Makes the repository the one that is loaded; nothing is selected then. It stays so until another one is loaded.
void loadRepository(const std::filesystem::path& root);
void unloadRepository();

}  // namespace bench
