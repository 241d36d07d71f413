#include <QGuiApplication>

#include "apps/cli/CommandLine.h"
#include "host/files/SignalWatch.h"

int main(int argc, char** argv) {
  host::watchSignals();
  // Labels in pictures need fonts, and those need an application; a display is never asked for.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Qt talks about run-time folders that nothing here uses; what matters to a person is reported by the commands
  // themselves.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  // The window system takes options out of what it is given, --style among them, which is ours.
  int count = 1;
  const QGuiApplication application(count, argv);
  return cli::run(argc, argv);
}
