#include "apps/stage/Icons.h"

#include <QPainter>
#include <QPainterPath>

namespace stage {

namespace {

const QColor BLUE(120, 176, 224);

QPolygonF points(const QVector<QPointF>& list) { return {list}; }

// Every picture is drawn in a square of 24.

void drawPage(QPainter& p) {
  p.drawPolyline(points({{14, 3.5}, {6, 3.5}, {6, 20.5}, {18, 20.5}, {18, 7.5}, {14, 3.5}, {14, 7.5}, {18, 7.5}}));
}

void drawFolder(QPainter& p) {
  p.drawPolyline(points({{3.5, 19}, {3.5, 5.5}, {9, 5.5}, {11, 8}, {18.5, 8}, {18.5, 11}}));
  p.drawPolygon(points({{3.5, 19}, {7, 11}, {21.5, 11}, {18, 19}}));
}

void drawDisk(QPainter& p) {
  p.drawPolygon(points({{4, 4}, {17, 4}, {20, 7}, {20, 20}, {4, 20}}));
  p.drawRect(QRectF(8, 13, 8, 7));
  p.drawRect(QRectF(8, 4, 7, 4.5));
}

void drawPointer(QPainter& p) {
  p.drawPolygon(points({{7, 3.5}, {7, 18}, {10.5, 14.8}, {13, 20.5}, {15.5, 19.4}, {13, 13.8}, {17.6, 13.4}}));
}

void drawBackArrow(QPainter& p) {
  QPainterPath path(QPointF(5, 9));
  path.lineTo(14, 9);
  path.cubicTo(21, 9, 21, 19, 14, 19);
  path.lineTo(9, 19);
  p.drawPath(path);
  p.drawPolyline(points({{9.5, 4.5}, {5, 9}, {9.5, 13.5}}));
}

void drawForwardArrow(QPainter& p) {
  p.translate(24, 0);
  p.scale(-1, 1);
  drawBackArrow(p);
}

void drawCross(QPainter& p) {
  p.drawLine(QPointF(6, 6), QPointF(18, 18));
  p.drawLine(QPointF(18, 6), QPointF(6, 18));
}

void drawCorners(QPainter& p) {
  for (int i = 0; i < 4; ++i) {
    p.drawPolyline(points({{4, 9}, {4, 4}, {9, 4}}));
    p.translate(24, 0);
    p.rotate(90);
  }
}

void drawFramedOne(QPainter& p) {
  drawCorners(p);
  p.setBrush(BLUE);
  p.setPen(Qt::NoPen);
  p.drawRoundedRect(QRectF(8.5, 8.5, 7, 7), 1.5, 1.5);
}

void drawFramedAll(QPainter& p) {
  drawCorners(p);
  p.setBrush(BLUE);
  p.setPen(Qt::NoPen);
  for (const QPointF& at : {QPointF(7, 12.5), QPointF(12.5, 12.5), QPointF(9.75, 7)}) {
    p.drawRoundedRect(QRectF(at, QSizeF(4.5, 4.5)), 1, 1);
  }
}

void drawPicture(QPainter& p) {
  p.drawRoundedRect(QRectF(3.5, 5, 17, 14), 1.5, 1.5);
  p.setPen(QPen(BLUE, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawPolyline(points({{5.5, 16.5}, {10, 10.5}, {13, 14}, {15, 12}, {18.5, 16.5}}));
  p.drawEllipse(QPointF(15.5, 8.8), 1.1, 1.1);
}

void drawImport(QPainter& p) {
  p.drawPolyline(points({{4, 14}, {4, 20}, {20, 20}, {20, 14}}));
  p.setPen(QPen(BLUE, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  p.drawLine(QPointF(12, 4), QPointF(12, 15));
  p.drawPolyline(points({{7.5, 10.5}, {12, 15}, {16.5, 10.5}}));
}

void draw(QPainter& p, Icon which) {
  switch (which) {
    case Icon::New:
      return drawPage(p);
    case Icon::Open:
      return drawFolder(p);
    case Icon::Save:
      return drawDisk(p);
    case Icon::Select:
      return drawPointer(p);
    case Icon::Undo:
      return drawBackArrow(p);
    case Icon::Redo:
      return drawForwardArrow(p);
    case Icon::Delete:
      return drawCross(p);
    case Icon::FrameSelection:
      return drawFramedOne(p);
    case Icon::FrameAll:
      return drawFramedAll(p);
    case Icon::Picture:
      return drawPicture(p);
    case Icon::Import:
      return drawImport(p);
  }
}

QPixmap paint(Icon which, int pixels, double opacity) {
  QPixmap pixmap(pixels, pixels);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setOpacity(opacity);
  painter.scale(pixels / 24.0, pixels / 24.0);
  painter.setPen(QPen(QColor(216, 216, 216), 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  draw(painter, which);
  return pixmap;
}

}  // namespace

QIcon icon(Icon which) {
  QIcon result;
  for (const int pixels : {16, 24, 32, 48}) {
    result.addPixmap(paint(which, pixels, 1.0));
    // What the style makes of an icon by itself is too bright for this theme.
    result.addPixmap(paint(which, pixels, 0.35), QIcon::Disabled);
  }
  return result;
}

}  // namespace stage
