#include <benchmark/benchmark.h>

#include "bench/GeneratedRepository.h"
#include "host/application/Application.h"
#include "host/meshes/MeshFile.h"
#include "host/scene/Scene.h"
#include "host/undo/UndoStack.h"
#include "host/view/RayScene.h"
#include "host/view/SceneItems.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "scene/CharacterBuilder.h"
#include "scene/SceneNotifications.h"

namespace {

using bench::GeneratedRepository;
using host::Application;
using ZORVEL::Data2;
using ZORVEL::Selection2;

/// As while the plug-in runs: the register of proxies follows the scene.
void followTheScene() {
  static const bool once = (ZORVEL::SceneNotifications::Register(), true);
  benchmark::DoNotOptimize(once);
}

/// Body, one mandatory element, clothing and four assets, each a mesh file of 20,000 triangles.
void choose() {
  followTheScene();
  GeneratedRepository::ofSize(1).load();
  Selection2::SetCharacter(L"c00");
  Selection2::SetCloth(L"c0k0");
  Selection2::SetPose(L"c0p0");
  Selection2::SetSkin(L"c0s0");
  Selection2::SetStyle(L"c0k0m0");
  Selection2::ClearAssets();
  const ZORVEL::CharacterData* character = Data2::GetCharacter(0);
  for (int i = 1; i < 5; ++i) {
    Selection2::AddAsset(Data2::GetUnique(character->GetContainerElement(ZORVEL::ASSETS, i)));
  }
}

void buildOnce(benchmark::State& state) {
  if (ZORVEL::CharacterBuilder::BuildSelectedCharacter() == nullptr) state.SkipWithError("nothing was built");
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
  choose();
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
  choose();
  Application::instance().reset();
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
  choose();
  Application::instance().reset();
  for (int i = 0; i < state.range(0); ++i) {
    buildOnce(state);
    host::Node& head = *Application::instance().scene().root().children().back();
    Matrix3 tm(TRUE);
    tm.SetTrans(Point3(static_cast<float>(i % 100) * 150.0F, static_cast<float>(i / 100) * 150.0F, 0.0F));
    head.SetNodeTM(0, tm);
  }
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
