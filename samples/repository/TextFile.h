#pragma once

#include <filesystem>
#include <string>

namespace samples {

/// Writes the bytes, making the folders above the file. Answers an empty text, or what went wrong.
[[nodiscard]] std::string writeTextFile(const std::filesystem::path& file, const std::string& text);

}  // namespace samples
