#include "apps/cli/Choice.h"
#include "apps/support/LoadedRepository.h"
#include "apps/support/ModelText.h"
#include "fuzz/Look.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/application/Application.h"
#include "host/application/SceneFile.h"
#include "host/formats/SceneJson.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"
#include "model/RepositoryValidation.h"
#include "scene/BuildFindings.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "tests/check/CompleteRepository.h"

namespace fuzz {

namespace {

/// Everything of it that a person may ask for, so that much is built.
cli::CreateOptions optionsFor(const ZORVEL::CharacterData& character) {
  cli::CreateOptions options;
  options.character = apps::field(&character, ZORVEL::RepositoryFormat::FIELD_ID);
  options.assets = apps::idsOf(apps::elementsOf(character, ZORVEL::ASSETS));
  return options;
}

void build() {
  host::Application& application = host::Application::instance();
  ZORVEL::BuildReport report;
  const INode* parent = ZORVEL::CharacterBuilder::BuildSelectedCharacter(report);
  require((parent != nullptr) == (report.obstacle == ZORVEL::BuildObstacle::None), "either a character or an obstacle");
  ZORVEL::BuildFindings::Describe(report);
  lookAtScene();
  host::sceneJson(application.scene(), application.units());
  application.undo().undo();
  require(application.scene().nodes().empty(), "nothing is left of a character after undo");
}

void chooseAndBuild(const ZORVEL::CharacterData& character) {
  cli::CreateOptions options = optionsFor(character);
  bool isChosen = cli::choose(options).errors.empty();
  options.assets.clear();
  isChosen = isChosen || cli::choose(options).errors.empty();
  if (isChosen) build();
}

}  // namespace

void description(std::string_view bytes) {
  static const support::CompleteRepository repository;
  repository.write("zorvel.xml", std::string(bytes));
  const apps::LoadedRepository loaded(repository.folder().path());
  if (!loaded.error().empty()) return;
  int left = 3;
  for (const ZORVEL::CharacterData* character : apps::characters()) {
    if (left-- > 0) chooseAndBuild(*character);
  }
  host::Application::instance().reset();
  host::Listener::instance().clear();
}

}  // namespace fuzz
