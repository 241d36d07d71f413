#pragma once

#include <max.h>

#include "host/view/SceneView.h"
#include "host/view/Viewport.h"

namespace bench {

/// A scene of many characters, one more of which is being placed with the mouse in a viewport of 960 x 600 pixels.
class PlacingScene {
 public:
  /// The one with that many, kept until another is asked for: filling it takes far longer than what is measured in it.
  static PlacingScene& ofSize(int characters);

  explicit PlacingScene(int characters);
  ~PlacingScene();
  PlacingScene(const PlacingScene&) = delete;
  PlacingScene& operator=(const PlacingScene&) = delete;

  host::Viewport& view() { return view_; }
  host::SceneView& sceneView();
  /// The node that hangs on the mouse.
  INode* parent() { return parent_; }
  /// A way across the middle of the viewport.
  IPoint2 nextPixel();

 private:
  host::Viewport& view_;
  INode* parent_ = nullptr;
  int step_ = 0;
};

}  // namespace bench
