#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/// Writes a file whole or not at all: into a temporary file beside it that then takes its place. Answers an empty text,
/// or what went wrong; then an earlier file is as it was and nothing else is left behind. The folder must exist. What
/// is no file, a pipe or a device, is written into.
[[nodiscard]] std::string writeWholeFile(const std::filesystem::path& file, std::string_view content);

}  // namespace host
