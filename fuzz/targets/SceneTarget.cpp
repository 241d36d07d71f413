#include <regex>

#include "fuzz/Look.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/application/Application.h"
#include "host/application/SceneFile.h"
#include "host/services/Listener.h"
#include "tests/support/TemporaryFolder.h"

namespace fuzz {

namespace {

const support::TemporaryFolder& folder() {
  static const support::TemporaryFolder made;
  return made;
}

/// Without the handles, which are given anew whenever a scene is opened.
std::string saved() {
  const bool isSaved = host::saveScene(folder().path() / "saved.json").empty();
  require(isSaved, "a scene that was opened can be saved");
  static const std::regex handle("\n *\"handle\": [0-9]+,");
  return std::regex_replace(folder().read("saved.json"), handle, "");
}

void openAndSave() {
  lookAtScene();
  const std::string first = saved();
  const bool isOpen = host::openScene(folder().path() / "saved.json").empty();
  require(isOpen, "a scene that was saved can be opened");
  require(saved() == first, "a scene that was saved is the same when it is opened");
}

}  // namespace

void scene(std::string_view bytes) {
  host::Application& application = host::Application::instance();
  if (host::openScene(folder().write("scene.json", bytes)).empty()) openAndSave();
  application.reset();
  host::Listener::instance().clear();
}

}  // namespace fuzz
