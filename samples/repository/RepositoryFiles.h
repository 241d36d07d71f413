#pragma once

#include <QImage>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "host/meshes/Mesh.h"

namespace samples {

// Files of a repository: written whole or not at all, into folders that are made when they are missing. All answer an
// empty text, or what went wrong.

[[nodiscard]] std::string writeText(const std::filesystem::path& file, std::string_view text);
/// As PNG, into every file.
[[nodiscard]] std::string writePictures(const QImage& picture, const std::vector<std::filesystem::path>& files);
[[nodiscard]] std::string writeMesh(const host::Mesh& mesh, const std::filesystem::path& file);

}  // namespace samples
