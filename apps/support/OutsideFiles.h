#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace apps {

/// A line for each file that was read and that does not lie in the repository once links are followed: by a link, a
/// folder with "..", a library that names a texture elsewhere. `asked` was named by the user and is none of them.
std::vector<std::string> notesOnOutsideFiles(const std::filesystem::path& repository,
                                             const std::filesystem::path& asked = {});

}  // namespace apps
