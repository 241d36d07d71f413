#include <QGuiApplication>

#include "apps/cli/CommandLine.h"

int main(int argc, char** argv) {
  // Labels in pictures need fonts, and those need an application; a display is never asked for.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  return cli::run(argc, argv);
}
