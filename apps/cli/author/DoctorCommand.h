#pragma once

#include <filesystem>

namespace cli {

/// Looks at the machine, and at a repository unless that is empty, and prints what is well and what is not, as text or
/// as JSON. Answers an exit status: findings when something is not.
int runDoctor(const std::filesystem::path& repository, bool asJson);

}  // namespace cli
