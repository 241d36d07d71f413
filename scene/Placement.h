#pragma once

#include <ipoint2.h>

class INode;

namespace ZORVEL {

enum class PlacementStep : int { Idle = 0, Place = 1, Rotate = 2 };

/// Placing a new character with the mouse: the first click fixes where it stands, the second how it is turned, a right
/// click deletes it. One is placed at a time in the whole plug-in.
class Placement {
 public:
  Placement() = delete;

  /// Makes the placement mode current for the node. A node that is still being placed is forgotten where it stands.
  static void StartPlacement(INode* node);

  /// Null when nothing is being placed.
  static INode* GetNode();
  static PlacementStep GetStep();
  /// Where the click fell that fixed the position, in pixels; only x counts.
  static const IPoint2& GetRotateStart();

  /// The first click in the first step, the second one in the second; otherwise nothing.
  static void Click(const IPoint2& m);
  /// Deletes the character.
  static void Cancel();
  /// Leaves the character where it is, or was: nothing is being placed any more, and the host is back in a mode of its
  /// own. Harmless at any time.
  static void End();
  /// The last thing before the plug-in goes: ends, and takes the mode back from the host. Harmless at any time.
  static void Free();
};

}  // namespace ZORVEL
