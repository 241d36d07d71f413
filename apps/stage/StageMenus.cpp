#include "apps/stage/StageMenus.h"

#include <QMenuBar>

#include "apps/stage/EditCommands.h"
#include "apps/stage/Icons.h"
#include "apps/stage/PluginWindows.h"
#include "apps/stage/StageWindow.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/services/Accelerators.h"
#include "host/services/UndoStack.h"
#include "host/services/Units.h"

namespace stage {

namespace {

const QStringList UNIT_NAMES = {"Inches", "Feet", "Miles", "Millimeters", "Centimeters", "Meters", "Kilometers"};

template <class Receiver, class Slot>
QAction* add(QMenu* menu, const QString& text, const QKeySequence& keys, const QString& tip, Receiver* receiver,
             Slot slot) {
  QAction* action = menu->addAction(text, receiver, slot);
  action->setShortcut(keys);
  const QString shown = keys.toString(QKeySequence::NativeText);
  action->setToolTip(shown.isEmpty() ? tip : QString("%1 (%2)").arg(tip, shown));
  return action;
}

QAction* withIcon(QAction* action, Icon which) {
  action->setIcon(icon(which));
  return action;
}

QString stepText(const QString& verb, const std::vector<std::wstring>& names) {
  return names.empty() ? verb : QString("%1 %2").arg(verb, QString::fromStdWString(names.back()).replace('&', "&&"));
}

bool isOneKey(const QKeySequence& keys) {
  return keys.count() == 1 && (static_cast<unsigned>(keys[0]) & unsigned{Qt::KeyboardModifierMask}) == 0;
}

}  // namespace

QString unitName(int type) { return UNIT_NAMES.value(type, QString::number(type)); }

StageMenus::StageMenus(StageWindow& window) : QObject(&window), window_(window) {
  addFileMenu();
  addEditMenu();
  addViewMenu();
  addCustomizeMenu();
  addScriptingMenu();
  addToolBar();
  for (QMenu* menu : window.menuBar()->findChildren<QMenu*>()) menu->setToolTipsVisible(true);
}

void StageMenus::addFileMenu() {
  QMenu* menu = window_.menuBar()->addMenu(tr("&File"));
  FileCommands* files = &window_.files();
  new_ = withIcon(add(menu, tr("&New"), QKeySequence::New, tr("A new scene with a few things to stand on"), files,
                      &FileCommands::newScene),
                  Icon::New);
  open_ =
      withIcon(add(menu, tr("&Open…"), QKeySequence::Open, tr("Open a scene file"), files, &FileCommands::openAsked),
               Icon::Open);
  save_ = withIcon(add(menu, tr("&Save"), QKeySequence::Save, tr("Save the scene"), files, &FileCommands::saveAgain),
                   Icon::Save);
  add(menu, tr("Save &As…"), QKeySequence("Ctrl+Shift+S"), tr("Save the scene under another name"), files,
      &FileCommands::saveAsAsked);
  menu->addSeparator();
  import_ = withIcon(add(menu, tr("&Import Surroundings…"), QKeySequence("Ctrl+I"),
                         tr("Add a GLB or OBJ file to stand on or among"), files, &FileCommands::importAsked),
                     Icon::Import);
  menu->addSeparator();
  picture_ =
      withIcon(add(menu, tr("Save &Picture…"), QKeySequence("Ctrl+P"),
                   tr("Draw this view with sun and sky into a PNG file"), files, &FileCommands::savePictureAsked),
               Icon::Picture);
  add(menu, tr("Export &glTF…"), QKeySequence("Ctrl+E"), tr("Write the whole scene as glTF binary"), files,
      &FileCommands::exportGltfAsked);
  menu->addSeparator();
  add(menu, tr("&Quit"), QKeySequence("Ctrl+Q"), tr("Close the stage"), &window_, &QWidget::close);
}

void StageMenus::addEditMenu() {
  QMenu* menu = window_.menuBar()->addMenu(tr("&Edit"));
  undo_ =
      withIcon(add(menu, tr("&Undo"), QKeySequence("Ctrl+Z"), tr("Take the last step back"), this, &EditCommands::undo),
               Icon::Undo);
  redo_ = withIcon(add(menu, tr("&Redo"), QKeySequence("Ctrl+Y"), tr("Make the step again"), this, &EditCommands::redo),
                   Icon::Redo);
  menu->addSeparator();
  delete_ = withIcon(add(menu, tr("&Delete"), QKeySequence::Delete,
                         tr("Delete the selection with all that hangs on it"), this, &EditCommands::deleteSelection),
                     Icon::Delete);
  menu->addSeparator();
  select_ = withIcon(
      add(menu, tr("&Select by Mouse"), QKeySequence("Q"),
          tr("A click selects again; a command that waits for the mouse ends"), this, &StageMenus::selectByMouse),
      Icon::Select);
  select_->setCheckable(true);
  cancel_ = add(menu, tr("&Cancel Command"), QKeySequence("Esc"),
                tr("Break off the command that waits for the mouse, as a right click does"), &window_.view(),
                &ViewportWidget::cancelMode);
  // The window whose button started the command may be the active one still.
  cancel_->setShortcutContext(Qt::ApplicationShortcut);
  add(menu, tr("Select &All"), QKeySequence("Ctrl+A"), tr("Select everything"), this, &EditCommands::selectAll);
  add(menu, tr("Select &None"), QKeySequence("Ctrl+D"), tr("Select nothing"), this, &EditCommands::selectNone);
}

void StageMenus::addViewMenu() {
  QMenu* menu = window_.menuBar()->addMenu(tr("&View"));
  ViewportWidget* view = &window_.view();
  frame_ = withIcon(add(menu, tr("&Frame Selection"), QKeySequence("Z"), tr("Bring the selection into view"), view,
                        &ViewportWidget::frameSelection),
                    Icon::FrameSelection);
  frameAll_ = withIcon(add(menu, tr("Frame &All"), QKeySequence("Shift+Z"), tr("Bring everything into view"), view,
                           &ViewportWidget::frameAll),
                       Icon::FrameAll);
  menu->addSeparator();
  for (QDockWidget* panel : window_.findChildren<QDockWidget*>()) menu->addAction(panel->toggleViewAction());
  for (QToolBar* bar : window_.findChildren<QToolBar*>()) menu->addAction(bar->toggleViewAction());
  menu->addSeparator();
  QMenu* windows = menu->addMenu(tr("Plug-in &Windows"));
  connect(windows, &QMenu::aboutToShow, &window_, [windows, this] { listPluginWindows(*windows, window_); });
}

void StageMenus::addCustomizeMenu() {
  QMenu* customize = window_.menuBar()->addMenu(tr("&Customize"));
  QMenu* menu = customize->addMenu(tr("System &Unit"));
  units_ = new QActionGroup(this);
  for (int type = 0; type < UNIT_NAMES.size(); ++type) {
    QAction* action = menu->addAction(UNIT_NAMES[type], this, [this, type] { emit unitChosen(type); });
    action->setToolTip(tr("One unit of the scene is one of these; lengths keep their numbers"));
    action->setCheckable(true);
    units_->addAction(action);
  }
}

void StageMenus::addScriptingMenu() {
  QMenu* menu = window_.menuBar()->addMenu(tr("&Scripting"));
  add(menu, tr("&Script Line"), QKeySequence("F11"), tr("Type a line of script"), &window_,
      &StageWindow::goToScriptLine);
}

void StageMenus::addToolBar() {
  QToolBar* bar = window_.addToolBar(tr("Standard"));
  bar->setObjectName("standard");
  bar->setIconSize({22, 22});
  bar->addActions({new_, open_, save_});
  bar->addSeparator();
  bar->addAction(select_);
  bar->addSeparator();
  bar->addActions({undo_, redo_, delete_});
  bar->addSeparator();
  bar->addActions({frame_, frameAll_});
  bar->addSeparator();
  bar->addActions({import_, picture_});
}

void StageMenus::showUndo() {
  const host::UndoStack& undo = host::Application::instance().undo();
  undo_->setText(stepText(tr("&Undo"), undo.undoNames()));
  redo_->setText(stepText(tr("&Redo"), undo.redoNames()));
  undo_->setEnabled(!undo.undoNames().empty());
  redo_->setEnabled(!undo.redoNames().empty());
  for (QAction* action : {undo_, redo_}) {
    action->setToolTip(QString("%1 (%2)").arg(action->text().remove('&'), action->shortcut().toString()));
  }
}

void StageMenus::showSelection() { delete_->setEnabled(!host::Application::instance().scene().selection().empty()); }

void StageMenus::showUnit() {
  const int type = host::Application::instance().units().type();
  if (QAction* action = units_->actions().value(type)) action->setChecked(true);
}

void StageMenus::selectByMouse() {
  EditCommands::selectByMouse();
  // The click has unchecked the tool when it was chosen already.
  showMode();
}

void StageMenus::showMode() {
  const host::CommandModes& modes = host::Application::instance().modes();
  const bool standard = &modes.current() == &modes.standard();
  select_->setChecked(standard);
  // At other times the key is anybody's.
  cancel_->setEnabled(!standard);
}

void StageMenus::followAccelerators() {
  const bool act = host::Application::instance().accelerators().enabled();
  for (QAction* action : window_.findChildren<QAction*>()) {
    if (action == cancel_ || !isOneKey(action->shortcut())) continue;
    // Bars never have the focus, so such a shortcut rests and still stands in its menu.
    action->setShortcutContext(act ? Qt::WindowShortcut : Qt::WidgetShortcut);
  }
}

}  // namespace stage
