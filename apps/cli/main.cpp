#include <QByteArray>

#include "apps/cli/CommandLine.h"
#include "apps/support/ProgramStart.h"
#include "host/files/SignalWatch.h"

int main(int argc, char** argv) {
  apps::startProgram("zorvel");
  host::watchSignals();
  // Qt talks about run-time folders and damaged pictures; what matters to a person is reported by the commands
  // themselves.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  return cli::run(argc, argv);
}
