#pragma once

#include <string>
#include <vector>

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

enum class ElementKind { Body, Clothing, Asset, SharedAsset, MandatoryAsset };

/// Which record a part of the character was built from. Fields that the record lacks are empty.
struct BuildElement {
  ElementKind kind = ElementKind::Body;
  /// Of the pose for a body.
  std::wstring id;
  std::wstring name;
  /// Of the skin, the style or the asset's material that names the material; empty when the asset itself does.
  std::wstring materialId;
};

enum class MeshState {
  Found,
  Missing,
  Unreadable,  ///< a folder, an empty file, or one that cannot be opened
  Shared,      ///< with a node that was in the scene already: the disk was not asked
  Refused      ///< the proxy object did not take the file
};

enum class PlacingState {
  NotNeeded,
  ByRow,
  NoRow,     ///< in the asset matrix, for this pose
  NotListed  ///< a shared asset that the character does not refer to, so that no row can name it
};

enum class MaterialState {
  NotAsked,     ///< what has no place gets no material
  FromScene,    ///< as it was there
  FromLibrary,  ///< the last that was searched
  NoField,      ///< the record has no "material"
  NameOfMap,    ///< found as the name of a texture map only
  InNoLibrary
};

enum class LibraryState { Missing, Unreadable, WithoutName, NameOfMap, HoldsMaterial };

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

enum class OmissionReason {
  NoField,
  UnknownId,          ///< the pose asks for an asset that the character does not have
  NoSharedRecord,     ///< the asset refers to a shared one that is not there
  NotInModel,         ///< the selection names nothing that is loaded
  NoBody,             ///< without a body the pose's assets are not tried
  ProxyClassMissing,  ///< the renderer is not loaded
  NodeNotMade
};

/// An element that was chosen, or that the pose asks for, and that was not built.
struct Omission {
  BuildElement element;
  OmissionReason reason;
  /// What the reason speaks of: a field, an id or a mesh file. Empty for NoBody, and where the id is missing.
  std::wstring subject;
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
