#include "apps/stage/viewport/ViewPicture.h"

#include <QPainter>
#include <cmath>
#include <limits>

#include "apps/stage/viewport/Bounds.h"
#include "host/application/Application.h"
#include "host/view/Lighting.h"
#include "host/view/SceneView.h"

namespace stage {

namespace {

/// The box and what its shadow falls upon, down to the ground.
Box3 withShadow(Box3 box) {
  const Point3 toSun = host::sunDirection();
  const float down = box.pmax.z / std::max(toSun.z, 0.05F);
  if (!(down > 0.0F)) return box;
  const Box3 lit = box;
  for (unsigned i = 0; i < 8; ++i) box += cornerOf(lit, i) - toSun * (cornerOf(lit, i).z / std::max(toSun.z, 0.05F));
  return box;
}

}  // namespace

bool ViewPicture::View::operator==(const View& other) const {
  return target == other.target && distance == other.distance && yaw == other.yaw && pitch == other.pitch &&
         size == other.size;
}

ViewPicture::ViewPicture(const host::Viewport& viewport)
    : viewport_(viewport), worker_([this] {
        QMetaObject::invokeMethod(
            this, [this] { takeIn(); }, Qt::QueuedConnection);
      }) {}

ViewPicture::View ViewPicture::viewOf(double ratio) const {
  const QSizeF size(viewport_.width() * ratio, viewport_.height() * ratio);
  return {viewport_.target(), viewport_.distance(), viewport_.yaw(), viewport_.pitch(), size.toSize()};
}

void ViewPicture::update(double ratio) {
  ratio_ = ratio;
  followScene();
  const View view = viewOf(ratio);
  if (view == view_) return;
  view_ = view;
  worker_.setView(viewport_.camera(), view.size);
}

void ViewPicture::followScene() {
  host::SceneView& sceneView = host::Application::instance().sceneView();
  const host::RayScene& rays = sceneView.rays();
  const host::SceneView::Changes changes = sceneView.takeChanges();
  if (!changes.any()) return;
  const std::vector<host::ViewItem>& items = rays.items();
  if (changes.everything || places_.size() != items.size()) {
    places_.clear();
    for (const host::ViewItem& item : items) places_.push_back(item.toWorld);
    worker_.setItems(items);
    return;
  }
  std::vector<PictureWorker::Move> moves;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (places_[i] == items[i].toWorld) continue;
    places_[i] = items[i].toWorld;
    moves.push_back({i, items[i].toWorld});
  }
  worker_.moveItems(std::move(moves), regionOf(changes.bounds));
}

QRect ViewPicture::regionOf(const Box3& worldBounds) const {
  const QSize size = viewOf(ratio_).size;
  const QRect all(QPoint(), size);
  const host::Camera camera = viewport_.camera();
  const Box3 box = withShadow(worldBounds);
  QRectF region;
  for (unsigned i = 0; i < 8; ++i) {
    const auto place = camera.project(cornerOf(box, i), size.width(), size.height());
    if (!place) return all;
    region = i == 0 ? QRectF(*place, QSizeF(1, 1)) : region.united(QRectF(*place, QSizeF(1, 1)));
  }
  return region.adjusted(-4, -4, 4, 4).intersected(all).toAlignedRect();
}

void ViewPicture::takeIn() {
  const std::vector<PictureWorker::Piece> pieces = worker_.takeFinished();
  if (pieces.empty()) return;
  if (image_.size() != view_.size) {
    // The old picture stands in until the new size is drawn.
    image_ = image_.isNull() ? QImage(view_.size, QImage::Format_ARGB32_Premultiplied) : image_.scaled(view_.size);
    if (places_.empty()) image_.fill(Qt::transparent);
  }
  image_.setDevicePixelRatio(1.0);
  QRegion region;
  {
    QPainter painter(&image_);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const PictureWorker::Piece& piece : pieces) {
      // Drawn before the view was resized.
      if (piece.whole != view_.size) continue;
      painter.drawImage(piece.where.topLeft(), piece.picture);
      const QRectF where(piece.where.x() / ratio_, piece.where.y() / ratio_, piece.where.width() / ratio_,
                         piece.where.height() / ratio_);
      region += where.toAlignedRect();
    }
  }
  image_.setDevicePixelRatio(ratio_);
  emit changed(region);
}

bool ViewPicture::complete() const { return worker_.complete() && !image_.isNull() && image_.size() == view_.size; }

}  // namespace stage
