#pragma once

namespace ZORVEL {

struct BuildContext;

/// Adds the context's current asset to the character that is being built: its mesh, its place in the pose and its
/// material.
class AssetBuilder {
 public:
  AssetBuilder() = delete;

  /// An asset that lacks a field, or whose mesh node cannot be made, is skipped. One that should have a row in the
  /// asset matrix and has none stays at the origin, without a material.
  static void Add(const BuildContext& context);
};

}  // namespace ZORVEL
