#pragma once

#include <filesystem>
#include <string>

namespace cli {

/// Prints why the elements with an id are offered and built, or why not. Answers an exit status: findings when there is
/// no such id, or when one of them is never offered or built.
int runExplain(const std::filesystem::path& repository, const std::string& id, bool asJson);

}  // namespace cli
