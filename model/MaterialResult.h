#pragma once

#include <string>
#include <vector>

namespace ZORVEL {

enum class MaterialState {
  NotAsked,     ///< what has no place gets no material
  FromScene,    ///< as it was there
  FromLibrary,  ///< the last that was searched
  NoField,      ///< the record has no "material"
  NameOfMap,    ///< found as the name of a texture map only
  InNoLibrary
};

/// What a library file has under the name of a material.
enum class LibraryState {
  NotLoaded,  ///< missing or unreadable
  WithoutName,
  NameOfMap,
  HoldsMaterial
};

struct LibrarySearch {
  std::wstring file;
  LibraryState state;
};

struct MaterialResult {
  MaterialState state = MaterialState::NotAsked;
  std::wstring name;
  /// In the order in which they were searched; none when the scene had the material.
  std::vector<LibrarySearch> searches;
  /// Files that the material now names and that are not there. Only asked for a material from a library.
  std::vector<std::wstring> missingTextures;
};

}  // namespace ZORVEL
