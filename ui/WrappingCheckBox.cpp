#include "ui/WrappingCheckBox.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QTextLayout>

namespace ZORVEL {

void WrappingCheckBox::paintEvent(QPaintEvent* /*event*/) {
  QStyleOptionButton option;
  initStyleOption(&option);
  const QSize box(style()->pixelMetric(QStyle::PM_IndicatorWidth, &option, this),
                  style()->pixelMetric(QStyle::PM_IndicatorHeight, &option, this));
  const int gap = style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, &option, this);
  QPainter painter(this);
  option.rect = QRect(QPoint(0, 0), box);
  style()->drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter, this);
  const QRect place = rect().adjusted(box.width() + gap, 0, 0, 0);
  painter.setPen(option.palette.color(QPalette::WindowText));
  PaintText(painter, place);
  if ((option.state & QStyle::State_HasFocus) == 0 || (option.state & QStyle::State_KeyboardFocusChange) == 0) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.rect = rect();
  style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void WrappingCheckBox::PaintText(QPainter& painter, const QRect& place) const {
  const QString shown = text().replace("&&", "&");
  const int height = fontMetrics().lineSpacing();
  QTextLayout layout(shown, font());
  QTextOption wrap(Qt::AlignLeft);
  wrap.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(wrap);
  layout.beginLayout();
  for (int y = place.top(); y + height <= place.bottom() + 1; y += height) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(place.width());
    const QRect row(place.left(), y, place.width(), height);
    const bool isLast = y + 2 * height > place.bottom() + 1;
    const QString rest = shown.mid(line.textStart(), isLast ? -1 : line.textLength());
    painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter,
                     isLast ? fontMetrics().elidedText(rest, Qt::ElideRight, row.width()) : rest);
  }
  layout.endLayout();
}

}  // namespace ZORVEL
