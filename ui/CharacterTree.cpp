#include "ui/CharacterTree.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "ui/DarkPalette.h"
#include "ui/Texts.h"

namespace ZORVEL {

CharacterTree::CharacterTree(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(1);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(16);
  setPalette(DarkPalette(palette()));
  setMouseTracking(true);
}

void CharacterTree::keyPressEvent(QKeyEvent* event) {
  m_handlingKey = true;
  QTreeWidget::keyPressEvent(event);
  m_handlingKey = false;
}

void CharacterTree::mouseMoveEvent(QMouseEvent* event) {
  QTreeWidget::mouseMoveEvent(event);
  emit MouseMoved();
}

void CharacterTree::paintEvent(QPaintEvent* event) {
  QTreeWidget::paintEvent(event);
  if (topLevelItemCount() > 0) return;
  QPainter painter(viewport());
  painter.setPen(QColor(150, 150, 150));
  painter.drawText(viewport()->rect().adjusted(8, 8, -8, -8), Qt::AlignTop | Qt::AlignHCenter | Qt::TextWordWrap,
                   tr("No usable characters in this repository"));
}

bool CharacterTree::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
  ShowToolTip(*static_cast<QHelpEvent*>(event));
  return true;
}

void CharacterTree::ShowToolTip(const QHelpEvent& event) {
  const QTreeWidgetItem* item = itemAt(event.pos());
  if (item == nullptr) return QToolTip::hideText();
  QToolTip::showText(event.globalPos(), Texts::ToolTip(item->text(0)), viewport(), visualItemRect(item));
}

}  // namespace ZORVEL
