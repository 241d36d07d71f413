#pragma once

#include <QPainter>

#include "host/rays/RayScene.h"
#include "host/view/Viewport.h"

namespace stage {

// What the viewport draws over the picture.

/// White corners around each selected thing, groups as a whole.
void paintSelection(QPainter& painter, const host::Viewport& viewport);
/// The names of things that stand in for what cannot be shown.
void paintLabels(QPainter& painter, const host::Viewport& viewport, const host::RayScene& rays);
/// The directions of the world's axes, in the lower left corner.
void paintTripod(QPainter& painter, const host::Viewport& viewport);
void paintViewName(QPainter& painter);

}  // namespace stage
