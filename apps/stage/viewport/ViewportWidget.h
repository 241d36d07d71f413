#pragma once

#include <QPointer>
#include <QWidget>

#include "apps/stage/viewport/ViewPicture.h"
#include "host/modes/MouseFeed.h"
#include "host/view/Viewport.h"

namespace stage {

/// Shows a viewport of the host and tells it what the mouse does: the middle button pans, with Alt it orbits, the wheel
/// zooms; the rest belongs to the current command mode. While that is the host's own, a left click selects and Alt with
/// the left button orbits too.
class ViewportWidget : public QWidget {
  Q_OBJECT

 public:
  explicit ViewportWidget(QWidget* parent = nullptr);
  ~ViewportWidget() override;

  host::Viewport& viewport() { return viewport_; }
  const ViewPicture& picture() const { return picture_; }
  QSize sizeHint() const override { return {960, 600}; }

 public slots:
  /// Something may have changed; what did is drawn soon. Cheap, may be called at any time.
  void refresh();
  /// Without a selection, everything.
  void frameSelection();
  void frameAll();
  /// Ends the mode that is current, the host's own excepted: it is told of a right click, which is how modes are
  /// cancelled, and left when it goes on all the same.
  void cancelMode();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool event(QEvent* event) override;

 private:
  enum class Navigation { None, Pan, Orbit };

  Navigation navigationFor(const QMouseEvent& event) const;
  void navigate(const QPoint& to);
  void selectAt(const QPoint& pixel, bool add);
  void followMode();

  host::Viewport& viewport_;
  host::MouseFeed feed_;
  ViewPicture picture_;
  Navigation navigation_ = Navigation::None;
  QPoint last_;
  bool refreshPending_ = false;
};

}  // namespace stage
