#pragma once

#include <box3.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

#include "host/rays/RayScene.h"

namespace host {

class Node;
class Scene;

/// Keeps a ray scene in step with the scene: what only moved is moved, everything else that can be seen makes it anew.
/// Picking and drawing share one, so that what is seen is what is hit.
class SceneView {
 public:
  /// What of the picture is out of date.
  struct Changes {
    bool everything = false;
    /// Around what moved, where it was and where it is, in the world; empty when nothing did.
    Box3 bounds;
    bool any() const { return everything || !bounds.IsEmpty(); }
  };

  explicit SceneView(Scene& scene) : scene_(scene) {}

  /// Brought up to date first. The reference stays good; its content changes with the next call after a change of the
  /// scene.
  const RayScene& rays();
  /// What changed since it was asked last; everything the first time. For one asker: a window with several views hands
  /// it on.
  Changes takeChanges();
  /// The nearest node along the ray that is accepted, or null. `accept` may be empty; it is asked once for each
  /// candidate.
  INode* pick(const Ray& ray, const RayScene::Accept& accept);
  /// How often everything was made anew, and how many items were moved: what tests and benchmarks look at.
  std::size_t rebuildCount() const { return rebuilds_; }
  std::size_t moveCount() const { return moves_; }

 private:
  RayScene& prepared();
  void update();
  void rebuild();
  void follow(Node& node);
  void moveWhatFollowed();

  Scene& scene_;
  /// Made when it is first asked for: it starts threads, and whoever only reads a repository needs none.
  std::optional<RayScene> rays_;
  std::unordered_map<const Node*, std::size_t> itemOf_;
  std::vector<std::size_t> followed_;
  std::uint64_t appearance_ = 0;
  std::uint64_t movesSeen_ = 0;
  bool built_ = false;
  Changes changes_{true, Box3()};
  std::size_t rebuilds_ = 0;
  std::size_t moves_ = 0;
};

}  // namespace host
