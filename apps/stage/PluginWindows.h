#pragma once

#include <QMenu>
#include <QWidget>

namespace stage {

/// The windows that plug-ins opened as children of the main window, shown or hidden, oldest first. Panels and dialogs
/// of the stage's own are none.
QList<QWidget*> pluginWindows(const QWidget& mainWindow);

/// Fills the menu with one entry for each of them that shows or hides it.
void listPluginWindows(QMenu& menu, const QWidget& mainWindow);

}  // namespace stage
