#pragma once

#include <filesystem>
#include <string>

class QImage;

namespace host {

/// Writes a PNG whole or not at all. Answers an empty text, or what went wrong.
[[nodiscard]] std::string writePicture(const QImage& picture, const std::filesystem::path& file);

}  // namespace host
