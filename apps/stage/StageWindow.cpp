#include "apps/stage/StageWindow.h"

#include <QCloseEvent>

#include "apps/stage/QtQuestions.h"
#include "apps/stage/ShownText.h"
#include "apps/stage/StageMenus.h"
#include "apps/stage/WindowMemory.h"
#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/services/Accelerators.h"
#include "host/services/Units.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

}  // namespace

StageWindow::StageWindow()
    : document_(new SceneDocument(this)),
      view_(new ViewportWidget),
      files_(new FileCommands(*document_, *view_, this)),
      nodes_(new NodePanel(this)),
      listener_(new ListenerPanel(this)),
      log_(new LogPanel(this)),
      prompt_(new PromptLine(this)),
      quickAccess_(new QuickAccessToolBar(this)),
      builds_(new BuildNews(this)),
      watch_(new HostWatch(this)) {
  setCentralWidget(view_);
  addDockWidget(Qt::RightDockWidgetArea, nodes_);
  addDockWidget(Qt::BottomDockWidgetArea, listener_);
  addDockWidget(Qt::BottomDockWidgetArea, log_);
  setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
  setStatusBar(prompt_);
  addToolBar(quickAccess_);
  menus_ = new StageMenus(*this);
  resize(1440, 900);
  resizeDocks({nodes_}, {310}, Qt::Horizontal);
  resizeDocks({listener_}, {130}, Qt::Vertical);
  connectHost();
  document_->startNew();
  view_->frameAll();
  view_->setFocus();
  catchUp();
}

StageWindow::~StageWindow() {
  application().redraw = {};
  application().accelerators().changed = {};
  application().interface().setMainWindow(nullptr);
  // Before the document and the view that its commands speak of.
  delete files_;
}

void StageWindow::connectHost() {
  application().interface().setMainWindow(this);
  application().redraw = [this] { view_->refresh(); };
  application().accelerators().changed = [this] { menus_->followAccelerators(); };
  menus_->followAccelerators();
  connect(watch_, &HostWatch::sceneChanged, view_, &ViewportWidget::refresh);
  connect(watch_, &HostWatch::sceneChanged, nodes_, &NodePanel::refresh);
  connect(watch_, &HostWatch::sceneChanged, menus_, &StageMenus::showSelection);
  connect(watch_, &HostWatch::sceneChanged, this, &StageWindow::showTitle);
  connect(watch_, &HostWatch::modeChanged, view_, &ViewportWidget::refresh);
  connect(watch_, &HostWatch::modeChanged, menus_, &StageMenus::showMode);
  connect(watch_, &HostWatch::undoChanged, menus_, &StageMenus::showUndo);
  connect(watch_, &HostWatch::promptChanged, prompt_, &PromptLine::setPrompt);
  connect(watch_, &HostWatch::linesReported, listener_, &ListenerPanel::report);
  connect(watch_, &HostWatch::buttonsChanged, quickAccess_, &QuickAccessToolBar::refresh);
  connect(watch_, &HostWatch::unitChanged, menus_, &StageMenus::showUnit);
  connect(watch_, &HostWatch::unitChanged, this, [this] {
    prompt_->setUnit(unitName(application().units().type()));
    showTitle();
  });
  connect(watch_, &HostWatch::checked, log_, &LogPanel::refresh);
  connect(watch_, &HostWatch::checked, builds_, &BuildNews::refresh);
  connect(builds_, &BuildNews::explained, listener_, &ListenerPanel::report);
  connect(builds_, &BuildNews::warned, prompt_, &PromptLine::warn);
  connect(builds_, &BuildNews::said, prompt_, &PromptLine::say);
  connect(document_, &SceneDocument::replaced, this, &StageWindow::showTitle);
  connect(files_, &FileCommands::said, prompt_, &PromptLine::say);
  connect(files_, &FileCommands::progress, prompt_, &PromptLine::setProgress);
  connect(menus_, &StageMenus::unitChosen, this, [this](int type) {
    document_->setUnit(type);
    view_->frameAll();
  });
}

void StageWindow::catchUp() { watch_->check(); }

void StageWindow::follow(const ModuleLog& log) {
  log_->follow(log);
  builds_->follow(log);
  if (log.records()) resizeDocks({listener_, log_}, {1, 1}, Qt::Horizontal);
}

void StageWindow::becomeInteractive() {
  interactive_ = true;
  files_->setQuestions(std::make_unique<QtQuestions>(this));
  WindowMemory::restore(*this);
}

void StageWindow::goToScriptLine() {
  listener_->show();
  listener_->scriptLine().setFocus();
}

void StageWindow::showTitle() {
  // Qt's mark for what was changed, which a name may hold.
  const QString name = shownText(document_->name()).replace("[*]", "[*][*]");
  setWindowTitle(QString("%1[*] - Zorvel Stage").arg(name));
  setWindowModified(document_->modified());
}

void StageWindow::closeEvent(QCloseEvent* event) {
  if (!files_->mayLeaveScene()) return event->ignore();
  if (interactive_) WindowMemory::remember(*this);
  MaxSDK::QmaxMainWindow::closeEvent(event);
}

}  // namespace stage
