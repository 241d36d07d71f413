#pragma once

#include <QActionGroup>
#include <QMainWindow>
#include <QToolBar>

#include "apps/stage/FileCommands.h"

namespace stage {

class StageWindow;

/// Menus and the standard tool bar of the stage's window, with their shortcuts.
class StageMenus : public QObject {
  Q_OBJECT

 public:
  explicit StageMenus(StageWindow& window);

  QAction& undoAction() const { return *undo_; }
  QAction& redoAction() const { return *redo_; }
  QAction& selectAction() const { return *select_; }

 public slots:
  /// The steps that undo and redo would make stand in their texts.
  void showUndo();
  void showSelection();
  void showUnit();
  /// Which tool the mouse is, and whether there is a mode to cancel.
  void showMode();
  /// Shortcuts of one key without a modifier act only while the host's accelerators do.
  void followAccelerators();

 signals:
  void unitChosen(int type);

 private:
  void addFileMenu();
  void addEditMenu();
  void addViewMenu();
  void addCustomizeMenu();
  void addScriptingMenu();
  void addToolBar();
  void selectByMouse();

  StageWindow& window_;
  QAction* new_ = nullptr;
  QAction* open_ = nullptr;
  QAction* save_ = nullptr;
  QAction* import_ = nullptr;
  QAction* picture_ = nullptr;
  QAction* select_ = nullptr;
  QAction* cancel_ = nullptr;
  QAction* undo_ = nullptr;
  QAction* redo_ = nullptr;
  QAction* delete_ = nullptr;
  QAction* frame_ = nullptr;
  QAction* frameAll_ = nullptr;
  QActionGroup* units_ = nullptr;
};

/// The name of one of the UNITS_ constants.
QString unitName(int type);

}  // namespace stage
