#include "bench/PlacingScene.h"

#include "bench/BenchScene.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/view/Viewports.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "scene/Placement.h"

namespace bench {

using host::Application;

PlacingScene& PlacingScene::ofSize(int characters) {
  static int size = 0;
  // Left to the end of the process: the plug-in's own registers may be gone before it.
  static PlacingScene* scene = nullptr;
  if (scene == nullptr || size != characters) {
    delete scene;
    scene = new PlacingScene(characters);
    size = characters;
  }
  return *scene;
}

PlacingScene::PlacingScene(int characters) : view_(Application::instance().viewports().open(960, 600)) {
  fillScene(characters);
  view_.lookAt(Point3(0, 0, 0), 3000.0F, 0.3F, 0.7F);
  ZORVEL::BuildReport report;
  parent_ = ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
  ZORVEL::Placement::StartPlacement(parent_);
}

PlacingScene::~PlacingScene() {
  Application::instance().modes().returnToStandard();
  Application::instance().viewports().close(view_.GetHWnd());
  Application::instance().reset();
}

host::SceneView& PlacingScene::sceneView() { return Application::instance().sceneView(); }

IPoint2 PlacingScene::nextPixel() {
  step_ = (step_ + 37) % 400;
  return {280 + step_, 200 + step_ / 2};
}

}  // namespace bench
