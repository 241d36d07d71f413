#include "ui/TabControl.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace ZORVEL {

namespace {

const int SPACE_BETWEEN = 3;

}  // namespace

TabButtons::TabButtons(QWidget* parent) : QTabBar(parent) {
  setExpanding(false);
  setUsesScrollButtons(true);
  setElideMode(Qt::ElideRight);
  setDrawBase(false);
}

QSize TabButtons::tabSizeHint(int /*index*/) const { return QSize(80 + SPACE_BETWEEN, 25); }

void TabButtons::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  for (int i = 0; i < count(); ++i) PaintButton(painter, i);
}

void TabButtons::PaintButton(QStylePainter& painter, int index) const {
  const bool isChosen = index == currentIndex();
  QStyleOptionButton button;
  button.initFrom(this);
  button.rect = tabRect(index).adjusted(0, 0, -SPACE_BETWEEN, 0);
  button.state |= isChosen ? QStyle::State_On | QStyle::State_Sunken : QStyle::State_Raised;
  painter.drawControl(QStyle::CE_PushButtonBevel, button);
  const QRect place = button.rect.adjusted(4, 0, -4, 0);
  const QString shown = fontMetrics().elidedText(tabText(index).replace("&&", "&"), Qt::ElideRight, place.width());
  painter.drawItemText(place, Qt::AlignCenter, palette(), isEnabled(), shown, QPalette::ButtonText);
  if (!isChosen) return;
  painter.fillRect(QRect(button.rect.left() + 2, button.rect.bottom() - 2, button.rect.width() - 4, 2),
                   palette().color(QPalette::Highlight));
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = button.rect.adjusted(2, 2, -2, -4);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

TabControl::TabControl(QWidget* parent) : QTabWidget(parent) {
  setTabBar(new TabButtons);
  setDocumentMode(true);
}

}  // namespace ZORVEL
