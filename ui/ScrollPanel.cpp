#include "ui/ScrollPanel.h"

#include <QEvent>
#include <QScrollBar>

#include "ui/DarkPalette.h"

namespace ZORVEL {

ScrollPanel::ScrollPanel(QWidget* parent) : QScrollArea(parent) {
  QPalette frame = DarkPalette(palette());
  frame.setColor(QPalette::WindowText, QColor(104, 104, 104));
  setPalette(frame);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  setLineWidth(1);
  viewport()->setMouseTracking(true);
  viewport()->installEventFilter(this);
  AddContent();
}

void ScrollPanel::AddContent() {
  auto* content = new QWidget;
  QPalette colours = DarkPalette(palette());
  // Inside of check boxes, which would not be seen otherwise.
  colours.setColor(QPalette::Base, QColor(104, 104, 104));
  content->setPalette(colours);
  content->setMouseTracking(true);
  content->installEventFilter(this);
  setWidget(content);
}

QWidget* ScrollPanel::Clear() {
  QWidget* old = takeWidget();
  if (old != nullptr) {
    old->hide();
    old->deleteLater();
  }
  AddContent();
  return old;
}

void ScrollPanel::FitContent() {
  QRect used;
  for (const QObject* child : GetContent()->children()) {
    const auto* control = qobject_cast<const QWidget*>(child);
    if (control != nullptr && !control->isHidden()) used |= control->geometry();
  }
  GetContent()->resize(used.right() + 1, used.bottom() + 1);
}

QPoint ScrollPanel::GetScrollPosition() const {
  return QPoint(horizontalScrollBar()->value(), verticalScrollBar()->value());
}

void ScrollPanel::SetScrollPosition(const QPoint& position) {
  horizontalScrollBar()->setValue(position.x());
  verticalScrollBar()->setValue(position.y());
}

bool ScrollPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::MouseMove) emit MouseMoved();
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace ZORVEL
