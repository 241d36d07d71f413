#pragma once

#include <QPainter>

#include "host/view/Viewport.h"

namespace stage {

/// Draws the grid on Z = 0 that lies under everything else, its two axes darker. The lines stand a power of ten apart
/// in scene units, the closer the nearer the eye is.
void paintGroundGrid(QPainter& painter, const host::Viewport& viewport);

/// Where a line in the world is in the viewport's pixels; a null line for what lies behind the eye.
QLineF projectLine(const host::Camera& camera, const QSize& size, const Point3& from, const Point3& to);

}  // namespace stage
