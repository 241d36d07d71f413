#include <gtest/gtest.h>
#include <max.h>

#include <QApplication>
#include <QtTest/QtTest>
#include <cmath>
#include <sstream>

#include "apps/stage/Stage.h"
#include "host/actions/ActionManager.h"
#include "host/application/Application.h"
#include "host/application/Prompts.h"
#include "host/scene/Scene.h"
#include "host/undo/UndoStack.h"
#include "tests/support/SmallRepository.h"

namespace {

using host::Application;

/// One whole use of the program with the module loaded, as it was recorded: what was done, where in the viewport, and
/// the prompt and the number of nodes that it left.
const char* const RECORDING = R"(
action  0   0   4 0 Ready
create  0   0   9 0 Place your ZORVEL Character
move    400 300 9 0 Place your ZORVEL Character
move    430 330 9 0 Place your ZORVEL Character
click   430 330 9 0 Rotate your ZORVEL Character
move    480 330 9 0.5 Rotate your ZORVEL Character
move    530 300 9 1 Rotate your ZORVEL Character
click   530 300 9 1 Place your ZORVEL Character
undo    0   0   4 0 Place your ZORVEL Character
redo    0   0   9 0 Place your ZORVEL Character
create  0   0   14 0 Place your ZORVEL Character
move    300 320 14 0 Place your ZORVEL Character
cancel  300 320 9 0 ZORVEL Character created
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

  /// Of the node that is placed, or of its group when that was.
  static float turnOfLast() {
    float turn = 0.0F;
    for (host::Node* node : Application::instance().scene().nodes()) {
      if (node->UserPropExists(L"ZORVEL_PARENT") == FALSE) continue;
      const Point3 axis = node->GetNodeTM(0).GetRow(0);
      turn = std::atan2(axis.y, axis.x);
    }
    return turn;
  }

  static void settle(stage::StageWindow& window) {
    QCoreApplication::processEvents();
    window.catchUp();
    QCoreApplication::processEvents();
  }

  static void play(stage::StageWindow& window, const std::string& what, const QPoint& pixel) {
    const QPoint place = window.view().mapTo(&window, pixel);
    if (what == "action") Application::instance().actions().executeAction(0x0B250BC2, 40001);
    if (what == "create") QTest::keyClick(window.windowHandle(), Qt::Key_K, Qt::ControlModifier);
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
  stage::Stage stage(options(repository));
  ASSERT_EQ(stage.run(), 0);
  stage::StageWindow& window = stage.window();
  window.resize(1100, 800);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  window.view().viewport().lookAt(Point3(0, 150, 60), 900.0F, 0.1F, 0.6F);
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
    EXPECT_NEAR(turnOfLast(), turn, 1e-4F) << "step " << step;
    EXPECT_EQ(window.promptLine().prompt().toStdString(), prompt) << "step " << step;
    keepPicture(window, step);
  }
  EXPECT_EQ(Application::instance().undo().undoNames().size(), 2U) << "the cancelled character's step does no harm";
}

}  // namespace
