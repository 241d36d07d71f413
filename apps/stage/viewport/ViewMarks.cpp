#include "apps/stage/viewport/ViewMarks.h"

#include <array>

#include "apps/stage/viewport/Bounds.h"
#include "apps/stage/viewport/GroundGrid.h"
#include "host/application/Application.h"
#include "host/geometry/Bounds.h"
#include "host/rays/Visibility.h"
#include "host/scene/Scene.h"

namespace stage {

namespace {

QSize sizeOf(const host::Viewport& viewport) { return {viewport.width(), viewport.height()}; }

/// A fifth of each edge, from each of its two corners.
void paintCorners(QPainter& painter, const host::Viewport& viewport, const Box3& box) {
  const host::Camera camera = viewport.camera();
  for (unsigned i = 0; i < 8; ++i) {
    const Point3 corner = cornerOf(box, i);
    for (const unsigned axis : {1U, 2U, 4U}) {
      const Point3 end = corner + (cornerOf(box, i ^ axis) - corner) * 0.2F;
      const QLineF line = projectLine(camera, sizeOf(viewport), corner, end);
      if (!line.isNull()) painter.drawLine(line);
    }
  }
}

void paintPlate(QPainter& painter, const QPointF& middle, const QString& text) {
  const QRectF around(middle.x() - 1000, middle.y() - 1000, 2000, 2000);
  const QRectF plate = painter.boundingRect(around, Qt::AlignCenter, text).adjusted(-6, -3, 6, 3);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(24, 26, 30, 200));
  painter.drawRoundedRect(plate, 3, 3);
  painter.setPen(QColor(230, 230, 230));
  painter.drawText(plate, Qt::AlignCenter, text);
}

}  // namespace

void paintSelection(QPainter& painter, const host::Viewport& viewport) {
  painter.setPen(QPen(QColor(240, 240, 240), 1.3));
  for (const auto& node : host::Application::instance().scene().selection()) {
    const Box3 box = boundsWithChildren(*node);
    if (!box.IsEmpty()) paintCorners(painter, viewport, box);
  }
}

void paintLabels(QPainter& painter, const host::Viewport& viewport, const host::RayScene& rays) {
  const host::Camera camera = viewport.camera();
  for (const host::ViewItem& item : rays.items()) {
    if (item.label.empty() || host::visibilityOf(item) != host::Visibility::Shown) continue;
    const Point3 middle = host::transformed(item.mesh->bounds, item.toWorld).Center();
    const auto place = camera.project(middle, viewport.width(), viewport.height());
    if (place) paintPlate(painter, *place, QString::fromStdWString(item.label));
  }
}

void paintTripod(QPainter& painter, const host::Viewport& viewport) {
  struct Axis {
    Point3 direction;
    QColor color;
    const char* name;
  };
  static const std::array<Axis, 3> axes = {{{{1, 0, 0}, QColor(214, 82, 72), "x"},
                                            {{0, 1, 0}, QColor(112, 188, 84), "y"},
                                            {{0, 0, 1}, QColor(92, 140, 232), "z"}}};
  // Seen from afar by the same camera, lengths on the screen are nearly parallel projections.
  host::Viewport afar(nullptr);
  afar.resize(64, 64);
  afar.lookAt(Point3(), 10.0F, viewport.yaw(), viewport.pitch());
  const host::Camera camera = afar.camera();
  const QPointF place(46, viewport.height() - 40);
  for (const Axis& axis : axes) {
    const auto end = camera.project(axis.direction, 64, 64);
    if (!end) continue;
    const QPointF along = (*end - QPointF(32, 32)) * 2.6;
    painter.setPen(QPen(axis.color, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QLineF(place, place + along));
    painter.drawText(QRectF(place + along * 1.35 - QPointF(8, 8), QSizeF(16, 16)), Qt::AlignCenter,
                     QLatin1String(axis.name));
  }
}

void paintViewName(QPainter& painter) {
  painter.setPen(QColor(214, 214, 214));
  painter.drawText(QPointF(10, 20), QObject::tr("Perspective"));
}

}  // namespace stage
