#include <QByteArray>

#include "apps/cli/CommandLine.h"
#include "apps/support/ProgramStart.h"

int main(int argc, char** argv) {
  apps::startProgram("zorvel");
  // Qt talks about run-time folders and damaged pictures; what matters to a person is reported by the commands
  // themselves.
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  return cli::run(argc, argv);
}
