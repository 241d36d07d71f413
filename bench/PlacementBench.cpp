#include <benchmark/benchmark.h>
#include <max.h>

#include "bench/PlacingScene.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/modes/MouseFeed.h"

namespace {

using bench::PlacingScene;
using host::Application;

/// What the mouse does in the viewport, nothing drawn.
void placementMove(benchmark::State& state) {
  PlacingScene& scene = PlacingScene::ofSize(static_cast<int>(state.range(0)));
  host::MouseFeed feed(Application::instance().modes(), scene.view().GetHWnd());
  feed.move(0, scene.nextPixel());
  for (auto _ : state) {
    feed.move(0, scene.nextPixel());
    benchmark::DoNotOptimize(&scene.sceneView().rays());
  }
}

/// The same rays and the same moves of the ray scene, without plug-in, modes and nodes.
void rayAndCommitAlone(benchmark::State& state) {
  PlacingScene& scene = PlacingScene::ofSize(static_cast<int>(state.range(0)));
  host::RayScene rays;
  rays.setItems(scene.sceneView().rays().items());
  std::vector<host::RayScene::Move> moves;
  for (std::size_t i = 0; i < rays.items().size(); ++i) {
    if (rays.items()[i].node->GetParentNode() == scene.parent()) moves.push_back({i, rays.items()[i].toWorld});
  }
  rays.moveItems(moves);
  const host::RayScene::Accept accept = [](INode*) { return true; };
  for (auto _ : state) {
    const IPoint2 pixel = scene.nextPixel();
    Ray ray;
    scene.view().MapScreenToWorldRay(static_cast<float>(pixel.x), static_cast<float>(pixel.y), ray);
    benchmark::DoNotOptimize(rays.intersect(ray, accept));
    for (host::RayScene::Move& move : moves) move.toWorld.Translate(Point3(0.01F, 0, 0));
    rays.moveItems(moves);
  }
}
// By size, so that each scene is filled once.
BENCHMARK(placementMove)->Arg(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(rayAndCommitAlone)->Arg(10)->Unit(benchmark::kMicrosecond);
BENCHMARK(placementMove)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(rayAndCommitAlone)->Arg(1000)->Unit(benchmark::kMicrosecond);
BENCHMARK(placementMove)->Arg(10000)->Unit(benchmark::kMicrosecond);
BENCHMARK(rayAndCommitAlone)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace
