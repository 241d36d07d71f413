#include "apps/stage/panels/QuickAccessToolBar.h"

#include <QPainter>

#include "apps/stage/ShownText.h"
#include "host/actions/ActionManager.h"
#include "host/actions/IconFolders.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

/// For an action without a picture: the first letter of its name.
QPixmap letterIcon(const QString& text, int size) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(QColor(88, 132, 168));
  painter.setPen(Qt::NoPen);
  painter.drawRoundedRect(QRectF(1, 1, size - 2, size - 2), 4, 4);
  QFont font = painter.font();
  font.setPixelSize(size * 2 / 3);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(pixmap.rect(), Qt::AlignCenter, text.left(1));
  return pixmap;
}

QIcon iconOf(ActionTable& table, int command, const QString& text) {
  QIcon icon;
  for (const int pixels : {16, 24}) {
    const QImage picture = application().icons().picture(table.GetIcon(command), pixels);
    if (!picture.isNull()) icon.addPixmap(QPixmap::fromImage(picture));
  }
  return icon.isNull() ? QIcon(letterIcon(text, 24)) : icon;
}

}  // namespace

QuickAccessToolBar::QuickAccessToolBar(QWidget* parent) : QToolBar(tr("Quick Access"), parent) {
  setObjectName("quickAccess");
  setIconSize({24, 24});
  setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void QuickAccessToolBar::refresh() {
  clear();
  for (const host::QuickAccessBar::Button& button : application().quickAccess().buttons()) {
    ActionTable* table = application().actions().FindTable(button.table);
    if (table == nullptr) continue;
    MSTR text;
    MSTR description;
    table->GetButtonText(button.command, text);
    table->GetDescriptionText(button.command, description);
    const QString name = QString::fromWCharArray(text);
    QAction* action = addAction(iconOf(*table, button.command, name), name, this,
                                [button] { application().actions().executeAction(button.table, button.command); });
    action->setToolTip(shownToolTip(
        QString("%1 (%2)").arg(QString::fromWCharArray(description), QString::fromWCharArray(table->GetName()))));
    action->setEnabled(application().actions().isActive(button.table));
  }
}

}  // namespace stage
