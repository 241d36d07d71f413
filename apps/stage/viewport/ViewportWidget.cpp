#include "apps/stage/viewport/ViewportWidget.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include "apps/stage/viewport/Bounds.h"
#include "apps/stage/viewport/GroundGrid.h"
#include "apps/stage/viewport/ViewMarks.h"
#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/view/SceneView.h"
#include "host/view/Viewports.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

bool standardMode() { return &application().modes().current() == &application().modes().standard(); }

int keysOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers.testFlag(Qt::ShiftModifier) ? MOUSE_SHIFT : 0) |
         (modifiers.testFlag(Qt::ControlModifier) ? MOUSE_CTRL : 0) |
         (modifiers.testFlag(Qt::AltModifier) ? MOUSE_ALT : 0);
}

IPoint2 pixelOf(const QMouseEvent& event) { return {event.pos().x(), event.pos().y()}; }

/// The whole group that a node belongs to is chosen with it.
host::Node& withGroup(host::Node& node) {
  host::Node* chosen = &node;
  for (INode* up = &node; up != nullptr && up->IsRootNode() == 0; up = up->GetParentNode()) {
    if (up->IsGroupHead() != FALSE) chosen = static_cast<host::Node*>(up);
  }
  return *chosen;
}

}  // namespace

ViewportWidget::ViewportWidget(QWidget* parent)
    : QWidget(parent),
      viewport_(application().viewports().open(960, 600)),
      feed_(application().modes(), viewport_.GetHWnd()),
      picture_(viewport_) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMinimumSize(240, 160);
  setAccessibleName(tr("Viewport"));
  connect(&picture_, &ViewPicture::changed, this, [this](const QRegion& region) { update(region); });
}

ViewportWidget::~ViewportWidget() { application().viewports().close(viewport_.GetHWnd()); }

void ViewportWidget::refresh() {
  if (refreshPending_) return;
  refreshPending_ = true;
  // Several changes within one event are drawn once.
  QTimer::singleShot(0, this, [this] {
    refreshPending_ = false;
    picture_.update(devicePixelRatioF());
    followMode();
    update();
  });
}

void ViewportWidget::followMode() {
  const Qt::CursorShape wanted = standardMode() ? Qt::ArrowCursor : Qt::CrossCursor;
  if (cursor().shape() != wanted) setCursor(wanted);
}

void ViewportWidget::frameSelection() {
  Box3 box;
  for (const auto& node : application().scene().selection()) box += boundsWithChildren(*node);
  if (box.IsEmpty()) return frameAll();
  viewport_.frame(box);
  refresh();
}

void ViewportWidget::frameAll() {
  viewport_.frame(boundsWithChildren(application().scene().root()));
  refresh();
}

void ViewportWidget::cancelMode() {
  host::CommandModes& modes = application().modes();
  if (standardMode()) return;
  const std::uint64_t generation = modes.generation();
  if (feed_.buttonDown()) feed_.abort();
  feed_.rightClick(0, {last_.x(), last_.y()});
  if (modes.generation() == generation) modes.returnToStandard();
  refresh();
}

void ViewportWidget::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  QLinearGradient background(0, 0, 0, height());
  background.setColorAt(0.0, QColor(94, 96, 99));
  background.setColorAt(1.0, QColor(66, 67, 69));
  painter.fillRect(event->rect(), background);
  painter.setRenderHint(QPainter::Antialiasing);
  paintGroundGrid(painter, viewport_);
  if (!picture_.image().isNull()) painter.drawImage(QPointF(), picture_.image());
  paintSelection(painter, viewport_);
  paintLabels(painter, viewport_, application().sceneView().rays());
  paintTripod(painter, viewport_);
  paintViewName(painter);
}

void ViewportWidget::resizeEvent(QResizeEvent* event) {
  viewport_.resize(event->size().width(), event->size().height());
  refresh();
}

ViewportWidget::Navigation ViewportWidget::navigationFor(const QMouseEvent& event) const {
  const bool alt = event.modifiers().testFlag(Qt::AltModifier);
  if (event.button() == Qt::MiddleButton) return alt ? Navigation::Orbit : Navigation::Pan;
  // A mode of a plug-in gets every left click, whatever key is held.
  return event.button() == Qt::LeftButton && alt && standardMode() ? Navigation::Orbit : Navigation::None;
}

void ViewportWidget::mousePressEvent(QMouseEvent* event) {
  last_ = event->pos();
  const Navigation navigation = navigationFor(*event);
  if (navigation != Navigation::None) {
    navigation_ = navigation;
    return;
  }
  const bool standard = standardMode();
  const int keys = keysOf(event->modifiers());
  if (event->button() == Qt::LeftButton) feed_.press(MOUSE_LBUTTON, keys, pixelOf(*event));
  if (event->button() == Qt::RightButton) feed_.rightClick(keys, pixelOf(*event));
  if (standard && event->button() == Qt::LeftButton)
    selectAt(event->pos(), event->modifiers().testFlag(Qt::ControlModifier));
  refresh();
}

void ViewportWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (navigation_ != Navigation::None) {
    navigation_ = Navigation::None;
    return;
  }
  if (event->button() == Qt::LeftButton) feed_.release(MOUSE_LBUTTON, keysOf(event->modifiers()), pixelOf(*event));
  refresh();
}

void ViewportWidget::mouseMoveEvent(QMouseEvent* event) {
  if (navigation_ != Navigation::None) return navigate(event->pos());
  feed_.move(keysOf(event->modifiers()), pixelOf(*event));
}

void ViewportWidget::navigate(const QPoint& to) {
  const QPoint by = to - last_;
  last_ = to;
  const auto dx = static_cast<float>(by.x());
  const auto dy = static_cast<float>(by.y());
  navigation_ == Navigation::Orbit ? viewport_.orbit(dx, dy) : viewport_.pan(dx, dy);
  refresh();
}

void ViewportWidget::wheelEvent(QWheelEvent* event) {
  viewport_.zoom(static_cast<float>(event->angleDelta().y()) / 120.0F);
  refresh();
  event->accept();
}

void ViewportWidget::focusOutEvent(QFocusEvent* event) {
  // The release may go to somebody else.
  navigation_ = Navigation::None;
  if (feed_.buttonDown()) feed_.abort();
  QWidget::focusOutEvent(event);
}

bool ViewportWidget::event(QEvent* event) {
  // Another screen may have other pixels.
  if (event->type() == QEvent::ScreenChangeInternal || event->type() == QEvent::Show) refresh();
  return QWidget::event(event);
}

void ViewportWidget::selectAt(const QPoint& pixel, bool add) {
  INode* node = application().interface().PickNode(viewport_.GetHWnd(), {pixel.x(), pixel.y()});
  if (node != nullptr) {
    application().scene().select(withGroup(static_cast<host::Node&>(*node)), !add);
  } else if (!add) {
    application().scene().clearSelection();
  }
}

}  // namespace stage
