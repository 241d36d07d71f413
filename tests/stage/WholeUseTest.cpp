#include <gmock/gmock.h>
#include <max.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QtTest/QtTest>
#include <cmath>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

#include "apps/cli/CommandLine.h"
#include "apps/stage/ModuleLog.h"
#include "apps/stage/PluginWindows.h"
#include "apps/stage/Stage.h"
#include "host/application/Application.h"
#include "host/formats/SceneJson.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "tests/stage/ManagerWindow.h"
#include "tests/support/SmallRepository.h"

namespace {

using host::Application;
using Json = nlohmann::json;

/// One whole use of the program with the module loaded, as it was recorded: what was done, where in the viewport, and
/// the prompt and the number of nodes that it left.
const char* const RECORDING = R"(
action  0   0   4 0 Ready
choose  0   0   4 0 Ready
create  0   0   9 0 Place your ZORVEL Character
move    400 300 9 0 Place your ZORVEL Character
move    430 330 9 0 Place your ZORVEL Character
click   430 330 9 0 Rotate your ZORVEL Character
move    480 330 9 0.5 Rotate your ZORVEL Character
move    530 300 9 1 Rotate your ZORVEL Character
click   530 300 9 1 Ready
undo    0   0   4 0 Ready
redo    0   0   9 0 Ready
create  0   0   14 0 Place your ZORVEL Character
move    300 320 14 0 Place your ZORVEL Character
cancel  300 320 9 0 Ready
create  0   0   14 0 Place your ZORVEL Character
escape  0   0   9 0 Ready
create  0   0   14 0 Place your ZORVEL Character
)";

class WholeUse : public testing::Test {
 protected:
  void SetUp() override {
    Application::instance().reset();
    Application::instance().prompts() = host::Prompts();
  }
  void TearDown() override { Application::instance().reset(); }

  static stage::StageOptions options(const support::SmallRepository& repository) {
    stage::StageOptions options;
    options.repository = repository.folder().path();
    options.module = std::filesystem::path(MODULE_FOLDER) / "zorvel-diagnostic.gup";
    options.quit = true;
    return options;
  }

  /// Where the node stands that was built last; the identity when there is none.
  static Matrix3 placeOfLast() {
    Matrix3 place(TRUE);
    for (host::Node* node : Application::instance().scene().nodes()) {
      if (node->UserPropExists(L"ZORVEL_PARENT") != FALSE) place = node->GetNodeTM(0);
    }
    return place;
  }
  static float turnOf(const Matrix3& place) { return std::atan2(place.GetRow(0).y, place.GetRow(0).x); }

  static void lookAtGround(stage::StageWindow& window) {
    window.resize(1100, 800);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.view().viewport().lookAt(Point3(0, 150, 60), 900.0F, 0.1F, 0.6F);
  }

  static void settle(stage::StageWindow& window) {
    QCoreApplication::processEvents();
    window.catchUp();
    QCoreApplication::processEvents();
  }

  static void play(stage::StageWindow& window, const std::string& what, const QPoint& pixel) {
    const QPoint place = window.view().mapTo(&window, pixel);
    if (what == "action") window.quickAccess().actions().front()->trigger();
    if (what == "choose") support::ManagerWindow().chooseCloth("Anna", "Summer");
    if (what == "create") support::ManagerWindow().create();
    // The button that was pressed is in the window that is active.
    if (what == "escape") QTest::keyClick(support::ManagerWindow::find()->windowHandle(), Qt::Key_Escape);
    // A window manager makes active what is clicked.
    window.activateWindow();
    if (what == "move") QTest::mouseMove(window.windowHandle(), place);
    if (what == "click") QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, place);
    if (what == "cancel") QTest::mouseClick(window.windowHandle(), Qt::RightButton, {}, place);
    if (what == "undo") QTest::keyClick(window.windowHandle(), Qt::Key_Z, Qt::ControlModifier);
    if (what == "redo") QTest::keyClick(window.windowHandle(), Qt::Key_Y, Qt::ControlModifier);
    settle(window);
  }

  /// A picture of every step, where somebody wants to look at them.
  static void keepPicture(stage::StageWindow& window, int step) {
    const QByteArray folder = qgetenv("ZORVEL_TEST_PICTURES");
    if (folder.isEmpty()) return;
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.view().picture().complete(); }, 60000));
    window.grab().save(QString("%1/step%2.png").arg(QString(folder)).arg(step, 2, 10, QChar('0')));
  }
};

TEST_F(WholeUse, RunsFromTheActionToUndoAsItWasRecorded) {
  const support::SmallRepository repository;
  repository.writePictures();
  std::optional<stage::Stage> stage(options(repository));
  ASSERT_EQ(stage->run(), 0);
  stage::StageWindow& window = stage->window();
  lookAtGround(window);
  std::istringstream recording(RECORDING);
  std::string what;
  QPoint pixel;
  std::size_t nodes = 0;
  float turn = 0.0F;
  for (int step = 1; recording >> what >> pixel.rx() >> pixel.ry() >> nodes >> turn; ++step) {
    std::string prompt;
    std::getline(recording >> std::ws, prompt);
    play(window, what, pixel);
    EXPECT_EQ(Application::instance().scene().nodes().size(), nodes) << "step " << step << ", " << what;
    EXPECT_NEAR(turnOf(placeOfLast()), turn, 1e-4F) << "step " << step;
    EXPECT_EQ(window.promptLine().prompt().toStdString(), prompt) << "step " << step;
    keepPicture(window, step);
  }
  EXPECT_EQ(Application::instance().undo().undoNames().size(), 4U) << "the cancelled character's step does no harm";
  stage.reset();
  EXPECT_EQ(Application::instance().prompts().top(), L"") << "closed in the middle of a placement";
  EXPECT_EQ(&Application::instance().modes().current(), &Application::instance().modes().standard());
}

/// Where two scenes differ first; empty when they are the same but for the handles of nodes and rounding.
std::string difference(const Json& a, const Json& b, const std::string& where = {}) {
  const std::string both = where + ": " + a.dump() + " and " + b.dump();
  if (a.is_number() && b.is_number()) return std::abs(a.get<double>() - b.get<double>()) < 1e-3 ? "" : both;
  if (a.type() != b.type() || a.size() != b.size()) return both;
  if (!a.is_structured()) return a == b ? "" : both;
  const Json left = a.flatten();
  const Json right = b.flatten();
  for (const auto& [path, value] : left.items()) {
    if (path.size() > 7 && path.substr(path.size() - 7) == "/handle") continue;
    const std::string found =
        right.contains(path) ? difference(value, right[path], where + path) : path + " is missing";
    if (!found.empty()) return found;
  }
  return left.size() == right.size() ? "" : where + " has more";
}

void removeSurroundings() {
  host::Scene& scene = Application::instance().scene();
  const auto tops = scene.root().children();
  for (const auto& node : tops) {
    if (node->IsGroupHead() == FALSE) scene.remove(*node);
  }
}

/// What the command line builds from the choice that the test below makes.
Json builtByCommandLine(const support::SmallRepository& repository, const Matrix3& place, float turn) {
  const support::TemporaryFolder folder;
  const Point3 at = place.GetTrans();
  std::ostringstream where;
  where.imbue(std::locale::classic());
  where << std::setprecision(9) << at.x << ',' << at.y << ',' << at.z;
  std::ostringstream degrees;
  degrees.imbue(std::locale::classic());
  degrees << std::setprecision(9) << turn * 57.29577951F;
  const std::string root = repository.folder().path();
  const std::string file = folder.path() / "scene.json";
  const std::string turned = degrees.str();
  const std::string stands = where.str();
  const char* const arguments[] = {"zorvel", "create",       root.c_str(), "--character",  "c1",      "--cloth",
                                   "k1",     "--pose",       "p1",         "--skin",       "s1",      "--style",
                                   "k1m2",   "--bare",       "--asset",    "a1:a1m1",      "--asset", "a5:g1m1",
                                   "--at",   stands.c_str(), "--turn",     turned.c_str(), "--json",  file.c_str()};
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  const int status = cli::run(static_cast<int>(std::size(arguments)), arguments);
  const std::string said = testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr();
  EXPECT_TRUE(std::filesystem::exists(file)) << status << ' ' << said;
  return std::filesystem::exists(file) ? Json::parse(folder.read("scene.json")) : Json();
}

TEST_F(WholeUse, WhatIsChosenByClicksIsTheSceneThatTheCommandLineMakesFromTheSameChoice) {
  const support::SmallRepository repository;
  repository.writePictures();
  Json byHand;
  Matrix3 place(TRUE);
  {
    stage::Stage stage(options(repository));
    ASSERT_EQ(stage.run(), 0);
    stage::StageWindow& window = stage.window();
    lookAtGround(window);
    EXPECT_EQ(support::ManagerWindow::find(), nullptr);
    play(window, "action", {});
    support::ManagerWindow manager;
    manager.chooseCharacter("Anna");
    manager.clickPicture("Summer");
    EXPECT_TRUE(manager.isChecked("Standing"));
    manager.clickPicture("Walking");
    EXPECT_FALSE(manager.isChecked("Standing"));
    manager.clickBox("Standing");
    manager.openTab("Clothing");
    manager.clickPicture("Props");
    manager.openTab("Things");
    for (const char* asset : {"Bag : Cloth", "Seat", "Bench : Oak"}) manager.clickBox(asset);
    manager.clickPicture("Seat");
    EXPECT_FALSE(manager.isChecked("Seat"));
    EXPECT_EQ(manager.choice().toStdString(),
              "Character: \"Anna\", Outfit: \"Summer\"\nPose: \"Standing\", Skin: \"Light\", Clothing: \"Props\"\n"
              "\"Bag:Cloth\", \"Bench:Oak\", ");
    manager.create();
    for (const char* step : {"move", "click"}) play(window, step, QPoint(430, 330));
    for (const char* step : {"move", "click"}) play(window, step, QPoint(500, 310));
    place = placeOfLast();
    // The command line has none. What they are made of must not have gone into the character.
    removeSurroundings();
    byHand = Json::parse(host::sceneJson(Application::instance().scene(), Application::instance().units()));
    play(window, "undo", {});
    EXPECT_TRUE(Application::instance().scene().nodes().empty());
  }
  EXPECT_GT(place.GetTrans().Length(), 10.0F);
  EXPECT_EQ(difference(byHand, builtByCommandLine(repository, place, turnOf(place))), "");
}

TEST_F(WholeUse, AfterEachCreateThePersonReadsWhatTheCharacterLacksAndWhy) {
  const support::SmallRepository repository;
  repository.mend();
  repository.writePictures();
  repository.edit(R"(id="p1" name="Standing")", R"(id="p1")");
  stage::Stage stage(options(repository));
  ASSERT_EQ(stage.run(), 0);
  stage::StageWindow& window = stage.window();
  lookAtGround(window);
  for (const char* step : {"action", "choose"}) play(window, step, {});
  std::filesystem::remove(repository.folder().path() / "anna/summer/k1_p1.vrmesh");
  play(window, "create", {});
  EXPECT_EQ(window.promptLine().message().toStdString(), "Built without: body, a2, mesh of Summer — see Listener");
  const QString reasons = window.listener().text();
  EXPECT_TRUE(reasons.contains("-- Body (p1): left out: it has no \"name\".\n")) << reasons.toStdString();
  EXPECT_TRUE(reasons.contains("Clothing \"Summer\" (k1): the mesh ")) << reasons.toStdString();
  EXPECT_TRUE(reasons.contains("k1_p1.vrmesh is missing.")) << reasons.toStdString();
  keepPicture(window, 50);
  play(window, "escape", {});

  support::ManagerWindow().clickPicture("Walking");
  play(window, "create", {});
  EXPECT_EQ(window.promptLine().message().toStdString(), "Character built");
  EXPECT_EQ(window.listener().text(), reasons) << "nothing to add";
  const auto log = stage::ModuleLog::of(std::filesystem::path(MODULE_FOLDER) / "zorvel-diagnostic.gup");
  EXPECT_EQ(log.buildsFrom(0).size(), log.buildsFrom(-1).size()) << "from the first one on";
}

TEST_F(WholeUse, TheInfoWindowWaitsInTheMenuAndGoesWithTheModule) {
  const support::SmallRepository repository;
  QPointer<QWidget> info;
  {
    stage::Stage stage(options(repository));
    ASSERT_EQ(stage.run(), 0);
    const QList<QWidget*> windows = stage::pluginWindows(stage.window());
    ASSERT_EQ(windows.size(), 1);
    info = windows.front();
    EXPECT_EQ(info->windowTitle(), "ZORVEL Info Window");
    EXPECT_FALSE(info->isVisible());
    EXPECT_THAT(info->findChild<QPlainTextEdit*>()->toPlainText().toStdString(),
                testing::EndsWith("zorvel::Start - plugin started...\n"));
    for (const bool shown : {true, false}) {
      QMenu menu;
      stage::listPluginWindows(menu, stage.window());
      ASSERT_EQ(menu.actions().size(), 1);
      menu.actions().front()->trigger();
      EXPECT_EQ(info->isVisible(), shown);
    }
  }
  EXPECT_EQ(info, nullptr);
}

}  // namespace
