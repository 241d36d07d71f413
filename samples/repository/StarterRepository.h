#pragma once

#include <filesystem>
#include <string>

namespace samples {

/// Writes the smallest repository that builds: one character with one skin, one clothing in one style and one pose, and
/// a description whose comments say what each list is for. It is meant to be replaced piece by piece. The folder is
/// made when it is missing. Answers an empty text, or what went wrong; what was written until then stays.
[[nodiscard]] std::string writeStarterRepository(const std::filesystem::path& folder);

}  // namespace samples
