#include <benchmark/benchmark.h>
#include <libxml/parser.h>
#include <malloc.h>
#include <sys/stat.h>

#include <vector>

#include "bench/GeneratedRepository.h"
#include "core/Settings.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "repository/Parser2.h"

namespace {

using bench::GeneratedRepository;
using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;

std::size_t heapInUse() { return mallinfo2().uordblks; }

void parseAlone(benchmark::State& state) {
  const GeneratedRepository& repository = GeneratedRepository::ofSize(static_cast<int>(state.range(0)));
  xmlSAXHandler handler = {};
  handler.initialized = XML_SAX2_MAGIC;
  handler.startElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*, int, const xmlChar**, int, int,
                              const xmlChar**) {};
  for (auto _ : state) {
    if (xmlSAXUserParseFile(&handler, nullptr, repository.description().c_str()) != 0)
      state.SkipWithError("not parsed");
  }
}
BENCHMARK(parseAlone)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

/// What one load takes from a heap that was just emptied.
double bytesPerElement(const GeneratedRepository& repository) {
  Data2::Clear();
  malloc_trim(0);
  const std::size_t before = heapInUse();
  ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath());
  return static_cast<double>(heapInUse() - before) / repository.elements();
}

/// Reads, fills the store and looks for the pictures and folders that decide what is kept; emptying the store is not
/// timed. The second argument gives the heap back to the system before each load, as it is when a program has just
/// started.
void load(benchmark::State& state) {
  const GeneratedRepository& repository = GeneratedRepository::ofSize(static_cast<int>(state.range(0)));
  repository.load();
  state.counters["elements"] = repository.elements();
  state.counters["bytes/element"] = bytesPerElement(repository);
  for (auto _ : state) {
    state.PauseTiming();
    Data2::Clear();
    if (state.range(1) != 0) malloc_trim(0);
    state.ResumeTiming();
    if (!ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath())) state.SkipWithError("not loaded");
  }
}
BENCHMARK(load)->ArgNames({"characters", "cold"})->ArgsProduct({{1, 10, 100}, {0, 1}})->Unit(benchmark::kMillisecond);

std::vector<std::string> foldersTested(const GeneratedRepository& repository) {
  std::vector<std::string> folders;
  for (const auto& top : std::filesystem::directory_iterator(repository.folder())) {
    if (!top.is_directory()) continue;
    folders.push_back(top.path().string());
    for (const auto& sub : std::filesystem::directory_iterator(top)) {
      if (sub.is_directory()) folders.push_back(sub.path().string());
    }
  }
  return folders;
}

void statAlone(benchmark::State& state) {
  const std::vector<std::string> folders = foldersTested(GeneratedRepository::ofSize(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    for (const std::string& folder : folders) {
      struct stat found = {};
      benchmark::DoNotOptimize(stat(folder.c_str(), &found));
    }
  }
  state.counters["folders"] = static_cast<double>(folders.size());
}
BENCHMARK(statAlone)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

void validate(benchmark::State& state) {
  GeneratedRepository::ofSize(static_cast<int>(state.range(0))).load();
  for (auto _ : state) Data2::ValidateAll();
}
BENCHMARK(validate)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);

void assetListsOfAllCategories(benchmark::State& state) {
  GeneratedRepository::ofSize(static_cast<int>(state.range(0))).load();
  const CharacterData* character = Data2::GetCharacter(0);
  ZORVEL::Selection2::SetCloth(L"c0k0");
  ZORVEL::Selection2::SetPose(L"c0p0");
  std::size_t listed = 0;
  for (auto _ : state) {
    listed = 0;
    for (int i = 0; i < character->GetCount(ZORVEL::CATEGORIES); ++i) {
      std::vector<DataContainer*> assets;
      character->GetAssetsForCategory(assets, character->GetContainerElement(ZORVEL::CATEGORIES, i));
      listed += assets.size();
    }
  }
  state.counters["assets"] = static_cast<double>(listed);
}
BENCHMARK(assetListsOfAllCategories)->Arg(1)->Arg(100)->Unit(benchmark::kMicrosecond);

}  // namespace
