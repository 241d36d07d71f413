#pragma once

#include <QImage>
#include <QObject>
#include <QRegion>
#include <vector>

#include "apps/stage/viewport/PictureWorker.h"
#include "host/view/Viewport.h"

namespace stage {

/// The drawn picture of the scene in one viewport, kept in step with both. Grid and background are left free.
class ViewPicture : public QObject {
  Q_OBJECT

 public:
  explicit ViewPicture(const host::Viewport& viewport);

  /// Looks at scene and camera, and has drawn what is out of date; returns at once. `ratio` is device pixels for each
  /// pixel.
  void update(double ratio);
  /// With the ratio set; null before anything was drawn.
  const QImage& image() const { return image_; }
  /// Everything that was asked for is drawn at its best and taken in.
  bool complete() const;
  const PictureWorker& worker() const { return worker_; }

 signals:
  /// In the viewport's pixels.
  void changed(const QRegion& region);

 private:
  struct View {
    Point3 target;
    float distance;
    float yaw;
    float pitch;
    QSize size;
    bool operator==(const View& other) const;
  };

  void takeIn();
  View viewOf(double ratio) const;
  void followScene();
  QRect regionOf(const Box3& worldBounds) const;

  const host::Viewport& viewport_;
  double ratio_ = 1.0;
  View view_{};
  QImage image_;
  /// What the worker was told last, to find out what moved since.
  std::vector<Matrix3> places_;
  PictureWorker worker_;
};

}  // namespace stage
