#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <iostream>

#include "bench/check/ShapedRepository.h"
#include "host/files/SignalWatch.h"

namespace {

/// For measurements of the whole command.
int write(const char* shape, const char* size, const std::filesystem::path& root) {
  std::filesystem::create_directories(root);
  std::cout << bench::writeRepository(bench::shapeOf(shape, std::stoi(size)), root) << " elements\n";
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  host::watchSignals();
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc == 5 && std::string(argv[1]) == "write") return write(argv[2], argv[3], argv[4]);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
