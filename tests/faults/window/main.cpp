// One fixed use of the stage and the plug-in's window, for runs in which something goes wrong: open, choose, create,
// place, undo, redo, save. What the listener says goes to standard error.
#include <QApplication>
#include <algorithm>
#include <iostream>
#include <stdexcept>

#include "apps/guide/WindowDriver.h"
#include "apps/stage/Stage.h"
#include "apps/support/ExitStatus.h"
#include "apps/support/ProgramStart.h"
#include "apps/support/RuntimeFolder.h"
#include "host/services/Listener.h"

namespace {

void choose(guide::WindowDriver& driver) {
  driver.openWindow();
  driver.chooseClothing("Anna", "Coat");
  driver.chooseClothing("Anna", "Dress");
  driver.tick("Sitting");
  driver.showTab("Skin");
  driver.tick("Dark");
}

void place(guide::WindowDriver& driver) {
  driver.pressCreate();
  driver.movePointer(0.42, 0.86);
  driver.click(0.42, 0.86);
  driver.movePointer(0.52, 0.86);
  driver.click(0.52, 0.86);
  driver.undo();
}

int save(stage::StageWindow& window, const std::filesystem::path& folder) {
  window.files().setPictureWidth(64);
  bool isSaved = window.files().save(folder / "scene.json");
  isSaved = window.files().exportGltf(folder / "scene.glb") && isSaved;
  isSaved = window.files().savePictureNow(folder / "scene.png") && isSaved;
  return isSaved ? apps::EXIT_CLEAN : apps::EXIT_INTERNAL;
}

int use(const std::filesystem::path& repository, const std::filesystem::path& module, const std::filesystem::path& to) {
  stage::StageOptions options;
  options.repository = repository;
  options.module = module;
  options.quit = true;
  stage::Stage stage(options);
  const int started = stage.run();
  if (started != apps::EXIT_CLEAN) return started;
  stage.window().resize(640, 480);
  guide::WindowDriver driver(stage.window(), to);
  choose(driver);
  place(driver);
  driver.pressCreate();
  const int saved = save(stage.window(), to);
  const std::vector<std::string> lines = host::Listener::instance().lines();
  for (const std::string& line : lines) std::cerr << line << '\n';
  return std::max(saved, lines.empty() ? int{apps::EXIT_CLEAN} : int{apps::EXIT_FINDINGS});
}

}  // namespace

int main(int argc, char** argv) try {
  apps::startProgram("fault-window");
  if (argc != 4) return apps::EXIT_USAGE;
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  const apps::RuntimeFolder runtimeFolder;
  QApplication application(argc, argv);
  return use(argv[1], argv[2], argv[3]);
} catch (const std::runtime_error& error) {
  // A page or box that is not there.
  std::cerr << "fault-window: " << error.what() << '\n';
  return apps::EXIT_FINDINGS;
}
