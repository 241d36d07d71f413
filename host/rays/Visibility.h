#pragma once

#include "host/rays/ViewItem.h"

namespace host {

/// What the ray caster can be given. It measures in single precision and stops the program where a place is no longer
/// a number to it, so everything that is shown or hit is judged here first.
enum class Visibility {
  Shown,
  /// There is nothing to see: no triangles, or a transform that flattens them to nothing.
  Nothing,
  /// There is something, too far away, too large, too small or too skewed to be shown.
  OutOfReach,
};

Visibility visibilityOf(const ViewItem& item);

/// In the mesh's own units: how far its corners may be, and in the world where rays may begin.
constexpr float FARTHEST_CORNER = 1e12F;
constexpr float FARTHEST_RAY = 1e11F;

}  // namespace host
