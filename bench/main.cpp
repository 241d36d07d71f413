#include <benchmark/benchmark.h>

#include <QApplication>

#include "bench/BenchStore.h"
#include "host/files/SignalWatch.h"

int main(int argc, char** argv) {
  host::watchSignals();
  // No display is needed, and none would be as fast as another.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_LOGGING_RULES", "*.warning=false");
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  const QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  bench::unloadRepository();
  return 0;
}
