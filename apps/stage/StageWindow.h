#pragma once

#include <Qt/QmaxMainWindow.h>

#include "apps/stage/BuildNews.h"
#include "apps/stage/FileCommands.h"
#include "apps/stage/HostWatch.h"
#include "apps/stage/ModuleLog.h"
#include "apps/stage/document/SceneDocument.h"
#include "apps/stage/panels/ListenerPanel.h"
#include "apps/stage/panels/LogPanel.h"
#include "apps/stage/panels/NodePanel.h"
#include "apps/stage/panels/PromptLine.h"
#include "apps/stage/panels/QuickAccessToolBar.h"
#include "apps/stage/viewport/ViewportWidget.h"

namespace stage {

class StageMenus;

/// The window in which the embedded host is used by hand, and which plug-ins get as its main window. It begins with a
/// new scene; there may be one at a time.
class StageWindow : public MaxSDK::QmaxMainWindow {
  Q_OBJECT

 public:
  StageWindow();
  ~StageWindow() override;

  ViewportWidget& view() const { return *view_; }
  FileCommands& files() const { return *files_; }
  SceneDocument& document() const { return *document_; }
  StageMenus& menus() const { return *menus_; }
  NodePanel& nodes() const { return *nodes_; }
  ListenerPanel& listener() const { return *listener_; }
  PromptLine& promptLine() const { return *prompt_; }
  QuickAccessToolBar& quickAccess() const { return *quickAccess_; }
  LogPanel& log() const { return *log_; }

  /// Shows what that module records from now on; one that records nothing, nothing.
  void follow(const ModuleLog& log);
  /// Brings everything shown up to date now, not only before the program waits.
  void catchUp();
  /// From now on a person is asked where a question is due, and the window is found again where it was left.
  void becomeInteractive();

 public slots:
  void goToScriptLine();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void connectHost();
  void showTitle();

  SceneDocument* document_;
  ViewportWidget* view_;
  FileCommands* files_;
  NodePanel* nodes_;
  ListenerPanel* listener_;
  LogPanel* log_;
  PromptLine* prompt_;
  QuickAccessToolBar* quickAccess_;
  BuildNews* builds_;
  StageMenus* menus_ = nullptr;
  HostWatch* watch_;
  bool interactive_ = false;
};

}  // namespace stage
