#pragma once

class INode;

namespace ZORVEL {

struct BuildReport;

/// Builds the selected character in the scene: one undoable step that leaves a group with the parent shape and its
/// meshes.
class CharacterBuilder {
 public:
  CharacterBuilder() = delete;

  /// The parent node (a member of the new group, not its head). Null when the selection is incomplete or names what the
  /// model does not hold: the scene and the undo list are then as before, and the report says what is missing.
  static INode* BuildSelectedCharacter(BuildReport& report);
};

}  // namespace ZORVEL
