#include "apps/stage/PluginWindows.h"

#include <QPointer>

namespace stage {

namespace {

bool isPluginWindow(const QWidget& widget) {
  const Qt::WindowType type = widget.windowType();
  return (type == Qt::Window || type == Qt::Dialog) && !widget.isModal() && !widget.windowTitle().isEmpty();
}

void show(QWidget* window, bool visible) {
  if (window == nullptr) return;
  if (!visible) {
    window->close();
    return;
  }
  window->showNormal();
  window->raise();
  window->activateWindow();
}

}  // namespace

QList<QWidget*> pluginWindows(const QWidget& mainWindow) {
  QList<QWidget*> windows;
  for (QWidget* widget : mainWindow.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (isPluginWindow(*widget)) windows.append(widget);
  }
  return windows;
}

void listPluginWindows(QMenu& menu, const QWidget& mainWindow) {
  menu.clear();
  for (QWidget* window : pluginWindows(mainWindow)) {
    QAction* entry = menu.addAction(window->windowTitle().replace('&', "&&"));
    entry->setCheckable(true);
    entry->setChecked(window->isVisible());
    const QPointer<QWidget> shown(window);
    QObject::connect(entry, &QAction::triggered, [shown](bool checked) { show(shown, checked); });
  }
  if (menu.isEmpty()) menu.addAction(QObject::tr("None"))->setEnabled(false);
}

}  // namespace stage
