#pragma once

#include <QImage>
#include <filesystem>
#include <string>
#include <vector>

namespace samples {

/// Writes the picture as PNG into every file, making the folders. Answers an empty text, or what went wrong.
[[nodiscard]] std::string writePicture(const QImage& picture, const std::vector<std::filesystem::path>& files);

}  // namespace samples
