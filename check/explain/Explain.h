#pragma once

#include <filesystem>
#include <string>

#include "check/explain/Explanation.h"

namespace check {

/// Checks the repository and tells of the elements with the id (UTF-8) what became of them on the way from the
/// description to the scene. One at a time, as with checkRepository.
ExplainResult explainId(const std::filesystem::path& root, const std::string& id);

}  // namespace check
