#include <benchmark/benchmark.h>
#include <max.h>

#include "bench/BenchScene.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/modes/MouseFeed.h"
#include "host/scene/Scene.h"
#include "host/view/Renderer.h"
#include "host/view/SceneView.h"
#include "host/view/Viewports.h"
#include "scene/CharacterBuilder.h"
#include "scene/Placement.h"

namespace {

using host::Application;
using host::SceneView;

constexpr int WIDTH = 960;
constexpr int HEIGHT = 600;

/// The scene with that many characters, one more of which is being placed with the mouse in a viewport.
class PlacingScene {
 public:
  explicit PlacingScene(int characters) : view_(Application::instance().viewports().open(WIDTH, HEIGHT)) {
    bench::fillScene(characters);
    view_.lookAt(Point3(0, 0, 0), 3000.0F, 0.3F, 0.7F);
    parent_ = ZORVEL::CharacterBuilder::BuildSelectedCharacter();
    ZORVEL::Placement::StartPlacement(parent_);
  }
  ~PlacingScene() {
    Application::instance().modes().returnToStandard();
    Application::instance().viewports().close(view_.GetHWnd());
    Application::instance().reset();
  }
  PlacingScene(const PlacingScene&) = delete;
  PlacingScene& operator=(const PlacingScene&) = delete;

  host::Viewport& view() { return view_; }
  INode* parent() { return parent_; }
  SceneView& sceneView() { return Application::instance().sceneView(); }
  IPoint2 nextPixel() {
    step_ = (step_ + 37) % 400;
    return {280 + step_, 200 + step_ / 2};
  }

 private:
  host::Viewport& view_;
  INode* parent_ = nullptr;
  int step_ = 0;
};

/// The one of that size, kept until another is asked for: filling it takes far longer than what is measured.
PlacingScene& placingScene(int characters) {
  static int size = 0;
  // Left to the end of the process: the plug-in's own registers may be gone before it.
  static PlacingScene* scene = nullptr;
  if (size != characters) {
    delete scene;
    scene = new PlacingScene(characters);
    size = characters;
  }
  return *scene;
}

/// What the mouse does in the viewport, nothing drawn.
void placementMove(benchmark::State& state) {
  PlacingScene& scene = placingScene(static_cast<int>(state.range(0)));
  host::MouseFeed feed(Application::instance().modes(), scene.view().GetHWnd());
  feed.move(0, scene.nextPixel());
  for (auto _ : state) {
    feed.move(0, scene.nextPixel());
    benchmark::DoNotOptimize(&scene.sceneView().rays());
  }
}

/// The same rays and the same moves of the ray scene, without plug-in, modes and nodes.
void rayAndCommitAlone(benchmark::State& state) {
  PlacingScene& scene = placingScene(static_cast<int>(state.range(0)));
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
