#pragma once

#include <string>
#include <vector>

#include "model/MaterialResult.h"
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
