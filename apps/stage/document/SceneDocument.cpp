#include "apps/stage/document/SceneDocument.h"

#include <units.h>

#include "apps/stage/document/Surroundings.h"
#include "host/application/Application.h"
#include "host/application/SceneFile.h"
#include "host/scene/Scene.h"
#include "host/services/Units.h"

namespace stage {

namespace {

host::Application& application() { return host::Application::instance(); }

}  // namespace

bool SceneDocument::State::operator==(const State& other) const {
  return appearance == other.appearance && moves == other.moves && unit == other.unit;
}

SceneDocument::SceneDocument(QObject* parent) : QObject(parent), settled_(stateNow()) {}

SceneDocument::State SceneDocument::stateNow() {
  const host::Scene& scene = application().scene();
  return {scene.appearance(), scene.moveCount(), application().units().type()};
}

QString SceneDocument::name() const {
  return file_.empty() ? tr("Untitled") : QString::fromStdString(file_.filename().string());
}

bool SceneDocument::modified() const { return !(stateNow() == settled_); }

void SceneDocument::startNew() {
  application().newScene();
  addSurroundings();
  settle({});
}

void SceneDocument::setUnit(int type) {
  const bool wasPristine = pristine();
  if (SetMasterUnitInfo(type, 1.0F) == 0 || !wasPristine) return;
  startNew();
}

std::string SceneDocument::open(const std::filesystem::path& file) {
  std::string error = host::openScene(file);
  if (error.empty()) settle(file);
  return error;
}

std::string SceneDocument::save(const std::filesystem::path& file) {
  std::string error = host::saveScene(file);
  if (error.empty()) settle(file);
  return error;
}

void SceneDocument::settle(std::filesystem::path file) {
  file_ = std::move(file);
  settled_ = stateNow();
  emit replaced();
}

}  // namespace stage
