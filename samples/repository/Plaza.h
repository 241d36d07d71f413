#pragma once

#include <filesystem>
#include <string>

namespace samples {

/// Writes a scene for people to be put into: a broad flight of steps up to a terrace, a seat wall, planters with
/// bushes. Centimetres; the steps rise along Y behind the origin. The running host's scene is a new one afterwards.
/// Answers an empty text, or what went wrong.
[[nodiscard]] std::string writePlaza(const std::filesystem::path& file);

}  // namespace samples
