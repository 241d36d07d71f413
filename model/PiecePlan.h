#pragma once

#include <string>
#include <vector>

#include "model/AssetMatrixElement.h"

namespace ZORVEL {

class DataContainer;

enum class ElementKind { Body, Clothing, Asset, SharedAsset, MandatoryAsset };

/// Which record a part of the character is built from. Fields that the record lacks are empty.
struct BuildElement {
  ElementKind kind = ElementKind::Body;
  /// Of the pose for a body.
  std::wstring id;
  std::wstring name;
  /// Of the skin, the style or the asset's material that names the material; empty when the asset itself does.
  std::wstring materialId;
};

enum class PlacingState {
  NotNeeded,
  ByRow,
  NoRow,     ///< in the asset matrix, for this pose
  NotListed  ///< a shared asset that the character does not refer to, so that no row can name it
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

/// An element that was chosen, or that the pose asks for, and that is not built.
struct Omission {
  BuildElement element;
  OmissionReason reason;
  /// What the reason speaks of: a field, an id or a mesh file. Empty for NoBody, and where the id is missing.
  std::wstring subject;
};

/// What building one part of a character takes, as far as the model decides it. Records and row are borrowed.
struct PiecePlan {
  BuildElement element;
  /// What is built. For an entry of a pose the asset, which may be a shared one, and the entry when there is none.
  const DataContainer* record = nullptr;
  /// If not, `omission` says why, and nothing is said of mesh, place and material.
  bool canBeBuilt = true;
  Omission omission = Omission();
  std::wstring meshFile;
  PlacingState placing = PlacingState::NotNeeded;
  /// Only for ByRow.
  const AssetMatrixElement* row = nullptr;
  /// The record whose "material" names the material, if it has one. Null when no material is asked for.
  const DataContainer* materialRecord = nullptr;
  /// In the order in which they are searched; none when no material is asked for.
  std::vector<std::wstring> libraries;
};

}  // namespace ZORVEL
