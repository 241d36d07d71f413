#include "apps/stage/StageWindow.h"

#include <actiontable.h>
#include <gmock/gmock.h>
#include <maxapi.h>
#include <units.h>

#include <QAction>
#include <QLabel>
#include <QTreeWidget>
#include <QtTest/QtTest>

#include "apps/stage/StageMenus.h"
#include "host/actions/ActionManager.h"
#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"
#include "host/services/Units.h"
#include "tests/stage/StageFixture.h"

namespace {

using host::Application;
using support::PreparedAnswers;
using testing::HasSubstr;

class StageWindow : public support::StageFixture {
 protected:
  PreparedAnswers::Answers& answers() {
    window().files().setQuestions(std::make_unique<PreparedAnswers>(answers_));
    return answers_;
  }
  std::filesystem::path file(const std::string& name, const std::string& text = {}) const {
    return folder_.write(name, text);
  }
  static std::vector<std::wstring> names() {
    std::vector<std::wstring> result;
    for (host::Node* one : scene().nodes()) result.emplace_back(one->GetName());
    return result;
  }
  void typeScript(const QString& text) {
    window().listener().scriptLine().setText(text);
    QTest::keyClick(&window().listener().scriptLine(), Qt::Key_Return);
    settle();
  }

  support::TemporaryFolder folder_;

 private:
  PreparedAnswers::Answers answers_;
};

TEST_F(StageWindow, NamesAndMessagesAreShownAsOneLineOfPlainText) {
  const std::wstring evil = L"<b>x<i>[*]\nforged\u202e";
  const QString shown = "<b>x<i>[*]\\x0aforged\\u202e";
  scene().nodes().front()->SetName(evil.c_str());
  Application::instance().listener().report(host::toUtf8(evil));
  const std::filesystem::path file = folder_.path() / host::toUtf8(evil + L".json");
  EXPECT_FALSE(window().files().open(file));
  settle();
  EXPECT_THAT(window().promptLine().message().toStdString(), HasSubstr(shown.left(8).toStdString()));
  EXPECT_THAT(listenerText().toStdString(), HasSubstr("-- " + shown.toStdString()));
  for (const QLabel* label : window().promptLine().findChildren<QLabel*>()) {
    EXPECT_FALSE(label->text().contains('\n'));
    EXPECT_TRUE(label->toolTip().isEmpty() || !label->toolTip().contains("<b>")) << label->toolTip().toStdString();
  }
  const auto* tree = window().findChild<QTreeWidget*>();
  EXPECT_FALSE(tree->findItems(shown, Qt::MatchExactly | Qt::MatchRecursive).isEmpty());
  EXPECT_TRUE(window().files().save(file));
  settle();
  EXPECT_THAT(window().windowTitle().toStdString(), testing::StartsWith("<b>x<i>[*][*]\\x0aforged\\u202e.json"));
}

/// One command that counts its calls.
class CountingTable : public ActionTable {
 public:
  explicit CountingTable(MSTR name) : ActionTable(77, 77, name, nullptr, 1, describe(), nullptr) {}
  BOOL GetButtonText(int /*commandId*/, MSTR& text) override {
    text = L"Count && more";
    return TRUE;
  }

 private:
  static ActionDescription* describe() {
    static ActionDescription description{5, 0, 0, 0};
    return &description;
  }
};

class CountingCallback : public ActionCallback {
 public:
  BOOL ExecuteAction(int /*commandId*/) override {
    ++calls;
    return TRUE;
  }
  int calls = 0;
};

TEST_F(StageWindow, WhatCannotBeReadOrUnderstoodLeavesALineAndTheSceneAsItWas) {
  const auto before = names();
  ASSERT_TRUE(window().files().save(folder_.path() / "good.json"));
  const std::string good = folder_.read("good.json");
  struct Case {
    const char* name;
    std::string content;
  };
  const std::vector<Case> scenes = {{"truncated.json", good.substr(0, good.size() / 2)},
                                    {"foreign.json", R"({"shopping": ["bread"]})"},
                                    {"binary.json", std::string("\x00\xff\x7f", 3)},
                                    {"empty.json", ""}};
  for (const Case& one : scenes) {
    SCOPED_TRACE(one.name);
    EXPECT_FALSE(window().files().open(file(one.name, one.content)));
    settle();
    EXPECT_THAT(listenerText().toStdString(), HasSubstr(one.name));
    EXPECT_EQ(names(), before);
  }
  EXPECT_FALSE(window().files().open(folder_.path()));
  EXPECT_FALSE(window().files().importSurroundings(folder_.path() / "missing.obj"));
  EXPECT_FALSE(window().files().importSurroundings(file("notes.obj", "dear diary")));
  EXPECT_FALSE(window().files().save(folder_.path() / "no such folder" / "scene.json"));
  settle();
  EXPECT_THAT(listenerText().toStdString(), HasSubstr("notes.obj"));
  typeScript("qat.add \"Nobody\" \"Nothing\"");
  typeScript("actionMan.executeAction 1 \"2\"");
  typeScript("open the <b>pod</b> bay doors");
  EXPECT_THAT(listenerText().toStdString(), HasSubstr("open the <b>pod</b> bay doors"));
  EXPECT_EQ(names(), before);
  EXPECT_FALSE(window().document().modified());
}

TEST_F(StageWindow, UnsavedChangesAreAskedAboutAndCancelKeepsThem) {
  EXPECT_FALSE(window().document().modified());
  EXPECT_FALSE(window().menus().undoAction().isEnabled());
  ASSERT_TRUE(window().files().importSurroundings(file("crate.obj", support::boxObj(40, 40, 40))));
  settle();
  EXPECT_TRUE(window().isWindowModified());
  EXPECT_EQ(window().menus().undoAction().text(), "&Undo Import Surroundings");

  answers().unsaved = stage::Questions::Unsaved::Cancel;
  key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_NE(node(L"crate"), nullptr);
  EXPECT_FALSE(window().close());

  answers().unsaved = stage::Questions::Unsaved::Save;
  answers().file = folder_.path() / "scene.json";
  key(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(node(L"crate"), nullptr);
  EXPECT_EQ(answers().asked, 3);
  ASSERT_TRUE(window().files().open(folder_.path() / "scene.json"));
  settle();
  EXPECT_NE(node(L"crate"), nullptr);
  EXPECT_NE(node(L"Table"), nullptr);
  EXPECT_FALSE(window().isWindowModified());
  EXPECT_THAT(window().windowTitle().toStdString(), HasSubstr("scene.json"));
  EXPECT_TRUE(window().close());
}

TEST_F(StageWindow, TheNodeListAndTheSceneSelectTogetherAndDeletingIsOneStep) {
  createCharacter();
  click(QPoint(20, 20), Qt::LeftButton);
  click(QPoint(20, 20), Qt::LeftButton);
  QTreeWidget& tree = window().nodes().tree();
  const std::size_t all = scene().nodes().size();
  QTreeWidgetItem* group = tree.topLevelItem(tree.topLevelItemCount() - 1);
  ASSERT_GT(group->childCount(), 0);
  tree.setCurrentItem(group);
  settle();
  ASSERT_EQ(scene().selection().size(), 1U);
  EXPECT_EQ(scene().selection().front()->IsGroupHead(), TRUE);

  key(Qt::Key_Delete);
  EXPECT_EQ(scene().nodes().size(), 4U);
  EXPECT_EQ(tree.topLevelItemCount(), 4);
  EXPECT_EQ(window().menus().undoAction().text(), "&Undo Delete");
  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(scene().nodes().size(), all);

  click(pixelOf(Point3(210, 150, 75)));
  ASSERT_EQ(tree.selectedItems().size(), 1);
  EXPECT_EQ(tree.selectedItems().front()->text(0), "Table");
}

TEST_F(StageWindow, TheQuickAccessBarShowsWhatScriptsAddAsLongAsItCanBeRun) {
  CountingCallback callback;
  host::ActionManager& actions = Application::instance().actions();
  actions.RegisterActionTable(new CountingTable(L"Counters"));
  actions.ActivateActionTable(&callback, 77);
  typeScript("qat.add \"Counters\" \"Count && more\"");
  ASSERT_EQ(window().quickAccess().actions().size(), 1);
  EXPECT_TRUE(window().quickAccess().actions().front()->isEnabled());
  window().quickAccess().actions().front()->trigger();
  typeScript("actionMan.executeAction 77 \"5\"");
  EXPECT_EQ(callback.calls, 2);

  actions.DeactivateActionTable(&callback, 77);
  settle();
  EXPECT_FALSE(window().quickAccess().actions().front()->isEnabled());
  actions.removeTable(77);
  settle();
  EXPECT_TRUE(window().quickAccess().actions().isEmpty());
}

TEST_F(StageWindow, OneKeyShortcutsRestWhileAPluginHoldsThemOff) {
  EXPECT_EQ(GetCOREInterface()->GetQmaxMainWindow(), &window());
  const std::size_t all = scene().nodes().size();
  scene().select(*scene().find(L"Table"), true);
  settle();
  DisableAccelerators();
  DisableAccelerators();
  EnableAccelerators();
  EXPECT_EQ(AcceleratorsEnabled(), FALSE);
  key(Qt::Key_Delete);
  EXPECT_EQ(scene().nodes().size(), all);
  key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_TRUE(scene().selection().empty()) << "those with a modifier go on acting";

  EnableAccelerators();
  EnableAccelerators();
  EXPECT_EQ(AcceleratorsEnabled(), TRUE);
  scene().select(*scene().find(L"Table"), true);
  settle();
  key(Qt::Key_Delete);
  EXPECT_EQ(scene().nodes().size(), all - 1);
}

TEST_F(StageWindow, AnUntouchedSceneTakesItsSizeFromTheUnitAndATouchedOneKeepsItsNumbers) {
  const auto height = [] { return scene().find(L"Table")->worldBounds().pmax.z; };
  EXPECT_NEAR(height(), 75.0F, 1e-3F);
  window().document().setUnit(UNITS_METERS);
  settle();
  EXPECT_NEAR(height(), 0.75F, 1e-5F);
  EXPECT_FALSE(window().document().modified());
  scene().remove(*scene().find(L"Ramp"));
  window().document().setUnit(UNITS_INCHES);
  settle();
  EXPECT_NEAR(height(), 0.75F, 1e-5F);
  EXPECT_EQ(Application::instance().units().type(), UNITS_INCHES);
  EXPECT_TRUE(window().document().modified());
}

TEST_F(StageWindow, PicturesAndGltfAreWritten) {
  EXPECT_TRUE(window().files().exportGltf(folder_.path() / "stage.glb"));
  EXPECT_EQ(folder_.read("stage.glb").substr(0, 4), "glTF");
  answers().file = folder_.path() / "view.png";
  window().files().setPictureWidth(64);
  window().files().savePictureAsked();
  EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(folder_.path() / "view.png"); }, 60000));
  settle();
}

}  // namespace
