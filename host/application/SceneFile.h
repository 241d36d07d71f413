#pragma once

#include <filesystem>
#include <string>

namespace host {

/// Replaces the scene, its unit and the undo list by what the file holds, once all of it could be read; tells the
/// plug-ins before and after. Answers one line that says why it could not, which goes to the listener too, or an empty
/// text; then plug-ins are told that opening failed and the scene is as it was.
[[nodiscard]] std::string openScene(const std::filesystem::path& file);

/// Writes the scene whole or not at all, in the form that `openScene` reads. Answers why it could not, which goes to
/// the listener too, or an empty text.
[[nodiscard]] std::string saveScene(const std::filesystem::path& file);

}  // namespace host
