#include <QApplication>
#include <exception>
#include <iostream>

#include "apps/guide/WindowDriver.h"
#include "apps/stage/DarkTheme.h"
#include "apps/stage/Stage.h"
#include "apps/support/ProgramStart.h"
#include "apps/support/RuntimeFolder.h"
#include "host/files/PrintableText.h"

namespace {

const char* const USAGE =
    "usage: zorvel-guide-pictures REPOSITORY FOLDER [--fine]\n"
    "Takes the pictures of the user guide: uses the stage and the window on the sample repository.\n"
    "--fine takes the one picture that shows the window on a fine screen; set QT_SCALE_FACTOR=2 for it.\n";

void choose(guide::WindowDriver& driver) {
  driver.takeStage("stage");
  driver.openWindow();
  driver.takeWindow("open");
  driver.chooseCharacter("Anna");
  driver.takeWindow("character");
  driver.chooseClothing("Anna", "Jeans and Jumper");
  driver.takeWindow("clothing");
  driver.tick("Walking");
  driver.showTab("Skin");
  driver.tick("Medium");
  driver.takeWindow("skin");
  driver.showTab("Clothing");
  driver.tick("Breton");
  driver.takeWindow("styles");
  driver.showTab("Shoes");
  driver.takeWindow("required");
  driver.showTab("Accessories");
  driver.tick("Glasses : Reading");
  driver.takeWindow("multiple");
  for (const char* page : {"In the Hand", "Bags", "Headwear", "Around"}) {
    driver.showTab(page);
    driver.takeWindow(QString(page).toLower().replace(' ', '-'));
  }
}

void place(guide::WindowDriver& driver) {
  driver.pressCreate();
  driver.movePointer(0.42, 0.86);
  driver.takeStage("placing");
  driver.click(0.42, 0.86);
  driver.movePointer(0.52, 0.86);
  driver.takeStage("turning");
  driver.click(0.52, 0.86);
  driver.takeStage("placed");
  driver.undo();
}

void takeAll(guide::WindowDriver& driver) {
  choose(driver);
  place(driver);
  driver.chooseClothing("Bruno", "Hoodie and Chinos");
  driver.takeWindow("unavailable");
}

void takeFine(guide::WindowDriver& driver) {
  driver.openWindow();
  driver.chooseClothing("Dimitri", "Winter Coat");
  driver.takeWindow("fine");
}

}  // namespace

int main(int argc, char** argv) try {
  apps::startProgram("zorvel-guide-pictures");
  if (argc < 3) {
    std::cerr << USAGE;
    return 2;
  }
  qputenv("QT_LOGGING_RULES", "default.warning=false");
  QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
  const apps::RuntimeFolder runtimeFolder;
  QApplication application(argc, argv);
  stage::applyDarkTheme(application);
  stage::StageOptions options;
  options.repository = argv[1];
  // The module that an artist has.
  options.module = QApplication::applicationDirPath().toStdString() + "/zorvel.gup";
  options.quit = true;
  stage::Stage stage(options);
  if (stage.run() != 0) return 1;
  stage.window().resize(1280, 800);
  guide::WindowDriver driver(stage.window(), argv[2]);
  argc > 3 ? takeFine(driver) : takeAll(driver);
  return 0;
} catch (const std::exception& error) {
  host::printLine(std::cerr, std::string("zorvel-guide-pictures: ") + error.what());
  return 1;
}
