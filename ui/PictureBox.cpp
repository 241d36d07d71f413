#include "ui/PictureBox.h"

#include <QFocusEvent>
#include <QPainter>

#include "ui/Texts.h"

namespace ZORVEL {

namespace {

bool IsByKeyboard(Qt::FocusReason reason) {
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
}

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QAbstractButton(parent) { setCursor(Qt::PointingHandCursor); }

void PictureBox::SetSource(const PictureSource& source) {
  m_source = source;
  m_loaded = false;
  update();
}

void PictureBox::Load() {
  m_loaded = true;
  m_picture = PictureCache::Instance().Get(m_source);
  if (m_picture.problem.isEmpty()) return;
  const QString complaint =
      tr("The picture cannot be shown, %1: %2").arg(m_picture.problem, Texts::FromWide(m_source.path).toHtmlEscaped());
  setToolTip(toolTip().isEmpty() ? complaint : toolTip() + "<br>" + complaint);
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  if (!m_loaded) Load();
  QPainter painter(this);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (m_picture.pixmap.isNull()) {
    PaintProblem(painter);
  } else {
    painter.drawPixmap(0, 0, m_picture.pixmap);
  }
  if (!m_focusIsShown) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PictureBox::PaintProblem(QPainter& painter) const {
  if (m_picture.problem.isEmpty()) return;
  painter.setPen(palette().color(QPalette::Disabled, QPalette::WindowText));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  painter.drawText(rect().adjusted(6, 6, -6, -6), Qt::AlignCenter | Qt::TextWordWrap,
                   tr("No picture:\n%1").arg(m_picture.problem));
}

void PictureBox::focusInEvent(QFocusEvent* event) {
  m_focusIsShown = IsByKeyboard(event->reason());
  QAbstractButton::focusInEvent(event);
}

void PictureBox::focusOutEvent(QFocusEvent* event) {
  m_focusIsShown = false;
  QAbstractButton::focusOutEvent(event);
}

}  // namespace ZORVEL
