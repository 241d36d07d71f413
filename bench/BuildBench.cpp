#include <benchmark/benchmark.h>

#include "bench/BenchScene.h"
#include "bench/GeneratedRepository.h"
#include "host/application/Application.h"
#include "host/meshes/MeshFile.h"
#include "host/rays/RayScene.h"
#include "host/scene/Scene.h"
#include "host/services/UndoStack.h"
#include "host/view/SceneItems.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"

namespace {

using bench::GeneratedRepository;
using host::Application;

void buildOnce(benchmark::State& state) {
  ZORVEL::BuildReport report;
  if (ZORVEL::CharacterBuilder::BuildSelectedCharacter(report) == nullptr) state.SkipWithError("nothing was built");
}

void readMeshFilesAlone(benchmark::State& state) {
  const std::filesystem::path base = GeneratedRepository::ofSize(1).folder() / "p0";
  for (auto _ : state) {
    for (const char* file : {"o0/pose.vrmesh", "k0/c0k0_c0p0.vrmesh", "a0/asset.vrmesh", "a1/asset.vrmesh",
                             "a2/asset.vrmesh", "a3/asset.vrmesh", "a4/asset.vrmesh"}) {
      benchmark::DoNotOptimize(host::readMeshFile((base / file).string()));
    }
  }
}
BENCHMARK(readMeshFilesAlone)->Unit(benchmark::kMillisecond);

void buildWithNewMeshes(benchmark::State& state) {
  bench::chooseCharacter();
  for (auto _ : state) {
    state.PauseTiming();
    Application::instance().reset();
    state.ResumeTiming();
    buildOnce(state);
  }
  Application::instance().reset();
}
BENCHMARK(buildWithNewMeshes)->Unit(benchmark::kMillisecond);

/// The argument is how many characters stand in the scene already.
void buildWithSharedMeshes(benchmark::State& state) {
  bench::chooseCharacter();
  for (int i = 0; i < state.range(0); ++i) buildOnce(state);
  for (auto _ : state) {
    buildOnce(state);
    state.PauseTiming();
    Application::instance().undo().undo();
    state.ResumeTiming();
  }
  Application::instance().reset();
}
BENCHMARK(buildWithSharedMeshes)->Arg(1)->Arg(100)->Arg(1000)->Unit(benchmark::kMillisecond);

/// One pick with a filter that takes everything, in a scene of that many characters.
void pick(benchmark::State& state) {
  bench::fillScene(static_cast<int>(state.range(0)));
  host::RayScene rays;
  rays.setItems(host::viewItems(Application::instance().scene()));
  const host::RayScene::Accept everything = [](INode*) { return true; };
  Ray ray;
  ray.p = Point3(20.0F, 20.0F, 1000.0F);
  ray.dir = Point3(0.03F, 0.03F, -1.0F);
  if (!rays.intersect(ray, everything)) state.SkipWithError("nothing was hit");
  for (auto _ : state) benchmark::DoNotOptimize(rays.intersect(ray, everything));
  Application::instance().reset();
}
BENCHMARK(pick)->Arg(1)->Arg(1000)->Unit(benchmark::kMicrosecond);

}  // namespace
