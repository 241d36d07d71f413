#pragma once

#include <filesystem>

namespace cli {

/// Prints what the model holds and what of it is usable, as text or as JSON; on standard error, what was left out or
/// skipped when the description was read. Answers an exit status: findings when something was left out.
int runList(const std::filesystem::path& repository, bool asJson);

}  // namespace cli
