#include "apps/stage/Stage.h"

#include <QApplication>
#include <iostream>

#include "apps/stage/PluginWindows.h"
#include "apps/stage/StageMenus.h"
#include "apps/support/ExitStatus.h"
#include "host/actions/IconFolders.h"
#include "host/application/Application.h"
#include "host/files/PictureFile.h"
#include "host/files/PrintableText.h"
#include "host/plugins/ModuleLoader.h"
#include "host/services/Listener.h"

namespace stage {

using namespace apps;

namespace fs = std::filesystem;

namespace {

host::Application& application() { return host::Application::instance(); }

fs::path programFolder() { return {QCoreApplication::applicationDirPath().toStdString()}; }

/// The build that says why something is not built, where there is one.
fs::path moduleBesideProgram() {
  const fs::path diagnostic = programFolder() / "zorvel-diagnostic.gup";
  std::error_code unknown;
  return fs::exists(diagnostic, unknown) ? diagnostic : programFolder() / "zorvel.gup";
}

/// Until the viewport shows its best, or nothing more is to be expected of it.
void waitForPicture(StageWindow& window) {
  while (!window.view().picture().complete()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  QCoreApplication::processEvents();
}

}  // namespace

Stage::Stage(StageOptions options) : options_(std::move(options)) {
  if (!options_.repository.empty()) settings_.emplace(options_.repository);
}

Stage::~Stage() {
  window_.follow({});
  application().modules().shutDown();
}

void Stage::complain(const QString& text, int status) {
  host::printLine(std::cerr, "zorvel-stage: " + text.toStdString());
  status_ = std::max(status_, status);
}

int Stage::run() {
  if (!options_.unattended()) window_.becomeInteractive();
  window_.show();
  prepare();
  runScripts();
  window_.catchUp();
  writePictures();
  if (options_.quit) return status_;
  return QApplication::exec() == 0 ? status_ : EXIT_INTERNAL;
}

void Stage::prepare() {
  if (settings_ && !settings_->error().empty()) {
    application().listener().report(settings_->error());
    complain(QString::fromStdString(settings_->error()), EXIT_UNREADABLE);
  }
  loadModule();
  if (!options_.scene.empty() && !window_.files().open(options_.scene)) {
    complain(window_.promptLine().message(), EXIT_UNREADABLE);
  }
}

void Stage::loadModule() {
  const fs::path module = options_.module.empty() ? moduleBesideProgram() : options_.module;
  const fs::path beside = fs::absolute(module).parent_path();
  application().icons().set({beside / "icons", programFolder() / "icons"});
  const std::string error = application().modules().load(module);
  if (!error.empty()) return complain(QString::fromStdString(error), EXIT_UNREADABLE);
  // What it opens unasked, an info window say, waits in the menu.
  for (QWidget* opened : pluginWindows(window_)) opened->close();
  window_.follow(ModuleLog::of(module));
}

void Stage::runScripts() {
  for (const std::string& script : options_.scripts) {
    const bool understood = window_.listener().scriptLine().run(QString::fromStdString(script));
    if (!understood) complain(QString("script not understood: %1").arg(QString::fromStdString(script)), EXIT_FINDINGS);
  }
}

void Stage::writePictures() {
  if (!options_.picture.empty() && !window_.files().savePictureNow(options_.picture)) {
    complain(window_.promptLine().message(), EXIT_INTERNAL);
  }
  if (options_.windowPicture.empty()) return;
  waitForPicture(window_);
  const std::string error = host::writePicture(window_.grab().toImage(), options_.windowPicture);
  if (!error.empty()) complain(QString::fromStdString(options_.windowPicture.string() + ": " + error), EXIT_INTERNAL);
}

}  // namespace stage
