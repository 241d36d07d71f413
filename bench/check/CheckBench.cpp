#include <benchmark/benchmark.h>

#include <map>
#include <memory>

#include "apps/support/SettledRoot.h"
#include "bench/check/ShapedRepository.h"
#include "check/Checker.h"
#include "check/Contents.h"
#include "check/Description.h"
#include "check/FolderIndex.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "host/files/TemporaryFolder.h"
#include "model/Data2.h"
#include "repository/Parser2.h"

namespace {

namespace fs = std::filesystem;

/// Of 10,000 elements.
constexpr int TYPICAL = 32;

struct WrittenRepository {
  host::TemporaryFolder folder{"zorvel-bench-"};
  int elements = 0;
};

/// Made when it is first asked for and kept for the life of the process.
const WrittenRepository& written(const std::string& shape, int size) {
  static std::map<std::pair<std::string, int>, WrittenRepository> all;
  WrittenRepository& one = all[{shape, size}];
  if (one.elements == 0) one.elements = bench::writeRepository(bench::shapeOf(shape, size), one.folder.path());
  return one;
}

/// The whole check but for reports.
void check(benchmark::State& state, const std::string& shape) {
  const WrittenRepository& repository = written(shape, static_cast<int>(state.range(0)));
  for (auto _ : state) {
    const check::CheckResult result = check::checkRepository(repository.folder.path(), {});
    if (!result.isReadable) state.SkipWithError("not checked");
    state.counters["findings"] = static_cast<double>(result.findings.size());
    state.counters["files"] = result.fileCount;
  }
  state.counters["elements"] = repository.elements;
}
BENCHMARK_CAPTURE(check, typical, std::string("typical"))
    ->Arg(3)
    ->Arg(TYPICAL)
    ->Arg(320)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(check, poses, std::string("poses"))->Arg(100)->Arg(400)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(check, assets, std::string("assets"))->Arg(2000)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(check, rows, std::string("rows"))->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(check, shared, std::string("shared"))->Arg(500)->Arg(5000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(check, files, std::string("files"))->Arg(5000)->Arg(50000)->Unit(benchmark::kMillisecond);

/// The parts of it that stand for themselves; what is left are the rules.
class Parts {
 public:
  Parts() : root_(written("typical", TYPICAL).folder.path()), settings_(root_), prefix_(ZORVEL::Settings::GetPath()) {}
  ~Parts() { ZORVEL::Data2::Clear(); }

  std::unique_ptr<check::FolderIndex> list() const {
    auto files = std::make_unique<check::FolderIndex>(root_, prefix_);
    files->read({});
    return files;
  }
  bool parse(check::FolderIndex& files) const {
    check::Description description;
    const ZORVEL::ViewedDisk viewed(files);
    const ZORVEL::ObservedParsing observed(description);
    ZORVEL::Data2::Clear();
    return ZORVEL::Parser2::ParseRepository(prefix_.c_str());
  }
  void want(check::Contents& contents) const {
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root_)) {
      const std::wstring path = prefix_ + host::toWide(entry.path().lexically_relative(root_).string());
      const fs::path ending = entry.path().extension();
      if (ending == ".png") contents.wantPicture(path);
      if (ending == ".vrmesh") contents.wantMesh(path);
      if (ending == ".mat") contents.wantLibrary(path);
    }
  }

 private:
  fs::path root_;
  apps::SettledRoot settings_;
  std::wstring prefix_;
};

void listFolders(benchmark::State& state) {
  const Parts parts;
  for (auto _ : state) benchmark::DoNotOptimize(parts.list());
}
BENCHMARK(listFolders)->Unit(benchmark::kMillisecond);

void parseWithPlaces(benchmark::State& state) {
  const Parts parts;
  const auto files = parts.list();
  for (auto _ : state) {
    if (!parts.parse(*files)) state.SkipWithError("not parsed");
  }
}
BENCHMARK(parseWithPlaces)->Unit(benchmark::kMillisecond);

void readContents(benchmark::State& state) {
  const Parts parts;
  const auto files = parts.list();
  for (auto _ : state) {
    state.PauseTiming();
    check::Contents contents(*files);
    parts.want(contents);
    state.ResumeTiming();
    contents.read({});
  }
}
BENCHMARK(readContents)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
