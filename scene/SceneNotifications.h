#pragma once

namespace ZORVEL {

/// Keeps the register of proxy objects in step with the scene: a new or opened scene empties it, a node that goes is
/// released. Ends the placement whose node goes.
class SceneNotifications {
 public:
  SceneNotifications() = delete;

  static void Register();
  /// Harmless when nothing is registered.
  static void Unregister();
};

}  // namespace ZORVEL
