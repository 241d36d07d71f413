#pragma once

#include <filesystem>
#include <string>

namespace stage {

/// Puts steps, a ramp, a table and a lamp above it into the scene, the middle left free. Sizes are right in the scene's
/// unit as it is now. Not recorded for undo.
void addSurroundings();

/// Adds a mesh from glTF binary or OBJ, on the origin, as one undoable step. Answers why it could not, in one line, or
/// an empty text.
std::string importSurroundings(const std::filesystem::path& file);

}  // namespace stage
