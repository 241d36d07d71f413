#pragma once

namespace ZORVEL {

/// Keeps the register of proxy objects in step with the scene: a new or opened scene empties it, a node that goes is
/// released.
class SceneNotifications {
 public:
  SceneNotifications() = delete;

  static void Register();
  /// Harmless when nothing is registered.
  static void Unregister();
};

}  // namespace ZORVEL
