#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/// Writes a file whole or not at all, whatever ends the program meanwhile. Answers an empty text, or what went wrong;
/// then an earlier file is as it was and nothing else is left behind. The folder must exist. A link stays and what it
/// leads to is written; what nobody may write is not replaced either. Written into is what is no file: a device of
/// characters, and a pipe that somebody reads.
[[nodiscard]] std::string writeWholeFile(const std::filesystem::path& file, std::string_view content);

/// The file that writing makes or replaces: where links lead, whether it is there or not.
std::filesystem::path writtenFile(const std::filesystem::path& file);

}  // namespace host
