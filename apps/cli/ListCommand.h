#pragma once

#include <filesystem>

namespace cli {

/// Prints what the model holds and what of it is usable, as text or as JSON. Answers an exit status.
int runList(const std::filesystem::path& repository, bool asJson);

}  // namespace cli
