#pragma once

#include <filesystem>
#include <string>

class QByteArray;
class QImage;

namespace host {

/// Empty for a null picture.
QByteArray pngBytes(const QImage& picture);

/// Writes a PNG whole or not at all. Answers an empty text, or what went wrong.
[[nodiscard]] std::string writePicture(const QImage& picture, const std::filesystem::path& file);

}  // namespace host
