#include <QApplication>
#include <exception>
#include <iostream>

#include "apps/stage/DarkTheme.h"
#include "apps/stage/Stage.h"
#include "apps/support/ExitStatus.h"
#include "apps/support/ProgramStart.h"
#include "apps/support/RuntimeFolder.h"
#include "host/files/PrintableText.h"

int main(int argc, char** argv) try {
  apps::startProgram("zorvel-stage");
  // Help and mistakes need no display.
  const stage::ParsedOptions parsed = stage::parseOptions(argc, argv);
  if (!parsed.options) return parsed.status;
  // Qt talks about run-time folders and window hints that nobody who runs it from a script cares for.
  if (parsed.options->unattended()) qputenv("QT_LOGGING_RULES", "default.warning=false");
  QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  // 150 % is 150 %.
  QApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
  const apps::RuntimeFolder runtimeFolder;
  QApplication application(argc, argv);
  stage::applyDarkTheme(application);
  stage::Stage run(*parsed.options);
  return run.run();
} catch (const std::exception& error) {
  host::printLine(std::cerr, std::string("zorvel-stage: internal error: ") + error.what());
  return apps::EXIT_INTERNAL;
}
