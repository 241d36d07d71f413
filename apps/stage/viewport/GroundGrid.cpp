#include "apps/stage/viewport/GroundGrid.h"

#include <cmath>

namespace stage {

namespace {

constexpr int LINES_EACH_WAY = 60;
constexpr int LINES_PER_FIELD = 10;
const QColor FINE_LINE(88, 88, 88);
const QColor FIELD_LINE(104, 104, 104);
const QColor AXIS_LINE(38, 38, 38);

float spacingFor(float distance) { return std::pow(10.0F, std::floor(std::log10(std::max(distance, 1e-4F) / 18.0F))); }

QPen penOf(long index) {
  if (index == 0) return {AXIS_LINE, 1.4};
  return {index % LINES_PER_FIELD == 0 ? FIELD_LINE : FINE_LINE, 1.0};
}

/// The lines along one axis, around the field that the target is in; `axisPass` draws only the line through the origin.
void paintLines(QPainter& painter, const host::Viewport& viewport, bool alongX, bool axisPass) {
  const host::Camera camera = viewport.camera();
  const QSize size(viewport.width(), viewport.height());
  const float spacing = spacingFor(viewport.distance());
  const float field = spacing * static_cast<float>(LINES_PER_FIELD);
  const float middleX = std::round(viewport.target().x / field) * field;
  const float middleY = std::round(viewport.target().y / field) * field;
  const float reach = spacing * static_cast<float>(LINES_EACH_WAY);
  for (int i = -LINES_EACH_WAY; i <= LINES_EACH_WAY; ++i) {
    const float across = (alongX ? middleY : middleX) + static_cast<float>(i) * spacing;
    const long index = std::lround(across / spacing);
    if ((index == 0) != axisPass) continue;
    const Point3 from = alongX ? Point3(middleX - reach, across, 0) : Point3(across, middleY - reach, 0);
    const Point3 to = alongX ? Point3(middleX + reach, across, 0) : Point3(across, middleY + reach, 0);
    const QLineF line = projectLine(camera, size, from, to);
    if (line.isNull()) continue;
    painter.setPen(penOf(index));
    painter.drawLine(line);
  }
}

}  // namespace

QLineF projectLine(const host::Camera& camera, const QSize& size, const Point3& from, const Point3& to) {
  const float near = 1e-3F * (from - to).Length();
  const float fromDepth = (from - camera.eye()) % camera.forward();
  const float toDepth = (to - camera.eye()) % camera.forward();
  if (fromDepth < near && toDepth < near) return {};
  // The end behind the eye is brought in front of it.
  const auto cut = [&] { return (near - fromDepth) / (toDepth - fromDepth); };
  const Point3 start = fromDepth < near ? from + (to - from) * cut() : from;
  const Point3 end = toDepth < near ? from + (to - from) * cut() : to;
  const auto a = camera.project(start, size.width(), size.height());
  const auto b = camera.project(end, size.width(), size.height());
  return a && b ? QLineF(*a, *b) : QLineF();
}

void paintGroundGrid(QPainter& painter, const host::Viewport& viewport) {
  for (const bool axisPass : {false, true}) {
    paintLines(painter, viewport, true, axisPass);
    paintLines(painter, viewport, false, axisPass);
  }
}

}  // namespace stage
