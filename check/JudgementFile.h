#pragma once

#include <filesystem>
#include <string>

#include "check/Judgement.h"

namespace check {

/// Stands beside the description.
constexpr const char* JUDGEMENT_FILE = ".zorvel-check.json";

/// Reads what the repository's own file says; without the file the judgement stays as it is. Answers an empty text, or
/// one line that names file and key; the judgement holds what came before then.
[[nodiscard]] std::string readJudgement(const std::filesystem::path& repository, Judgement& judgement);

}  // namespace check
