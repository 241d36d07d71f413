#pragma once

#include <string>
#include <vector>

#include "model/MeshFiles.h"
#include "model/PiecePlan.h"

namespace ZORVEL {

/// What keeps a build from making anything.
enum class BuildObstacle {
  None,
  Parent,          ///< the host did not make the parent node
  RepositoryPath,  ///< there are no settings
  Character,
  CharacterFolder,  ///< the character has no "folder"
  Pose,
  Clothing,
  Style,
  Skin
};

enum class MaterialState {
  NotAsked,     ///< what has no place gets no material
  FromScene,    ///< as it was there
  FromLibrary,  ///< the last that was searched
  NoField,      ///< the record has no "material"
  NameOfMap,    ///< found as the name of a texture map only
  InNoLibrary
};

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

/// One node of the character.
struct BuiltPiece {
  BuildElement element;
  std::wstring meshFile;
  MeshState mesh = MeshState::Found;
  PlacingState placing = PlacingState::NotNeeded;
  MaterialResult material;
};

/// What one build made, what it left out and why. Plain values: it stays true when scene and model have gone.
struct BuildReport {
  /// Unless None, nothing was built and the rest is empty.
  BuildObstacle obstacle = BuildObstacle::None;
  /// The id that names nothing, or of the character that lacks its folder; empty when nothing is chosen.
  std::wstring obstacleId;
  std::wstring poseId;
  std::vector<BuiltPiece> pieces;
  std::vector<Omission> omissions;
  bool isGrouped = true;
  bool isOnLayer = true;
};

}  // namespace ZORVEL
