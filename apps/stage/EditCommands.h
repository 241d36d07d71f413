#pragma once

namespace stage {

/// The commands of the Edit menu. Each does nothing where there is nothing to do.
class EditCommands {
 public:
  EditCommands() = delete;

  static void undo();
  static void redo();
  /// The selected nodes with everything below them, as one undoable step.
  static void deleteSelection();
  static void selectAll();
  static void selectNone();
  /// Leaves the mode that is current for the host's own, in which a click selects.
  static void selectByMouse();
};

}  // namespace stage
