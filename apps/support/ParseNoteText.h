#pragma once

#include <filesystem>
#include <string>

#include "repository/ParseObserver.h"

namespace apps {

/// One line for a person: file, line, column and what became of the element there. `root` is the repository's folder as
/// it is to be named.
std::string lineOf(const ZORVEL::ParseNote& note, const std::filesystem::path& root);

/// Whether something is gone that the description has: a character, a clothing, a row of the asset matrix.
bool isLoss(const ZORVEL::ParseNote& note);

}  // namespace apps
