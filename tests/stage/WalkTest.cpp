#include <max.h>

#include <QCheckBox>
#include <QPushButton>
#include <QtTest/QtTest>
#include <functional>
#include <iostream>
#include <random>

#include "apps/stage/EditCommands.h"
#include "apps/stage/StageMenus.h"
#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "tests/stage/SceneWalk.h"
#include "tests/stage/StageFixture.h"
#include "ui/MainWindowClass.h"
#include "ui/Texts.h"

namespace {

using host::Application;
using ZORVEL::Data2;
using ZORVEL::MainWindowClass;
using ZORVEL::Selection2;
using ZORVEL::Commands::CallMainWindow;

unsigned fromEnvironment(const char* name, unsigned otherwise) {
  bool good = false;
  const unsigned value = qEnvironmentVariable(name).toUInt(&good);
  return good ? value : otherwise;
}

/// A second one, so that there is something to choose; it shares meshes with the first.
const char* const SECOND_CHARACTER = R"(  <character id="c2" name="Berta" folder="anna">
    <skins name="Skin"><skin id="s2" name="Dark" material="Skin light" preview="light.png"/></skins>
    <cloth name="Clothing">
      <clothing id="k1" name="Summer" folder="summer">
        <material id="k1m1" name="Blue" material="Blue" preview="blue.png"/>
      </clothing>
    </cloth>
    <poses name="Pose"><pose id="p1" name="Standing" folder="standing"/></poses>
  </character>
</zorvel>)";

/// Random steps in the stage and in the plug-in's window. ZORVEL_WALK_STEPS and ZORVEL_WALK_SEED say how many and
/// which; whatever fails is printed with the steps that led there.
class Walk : public support::StageFixture {
 protected:
  void SetUp() override {
    repository().mend();
    repository().writePictures();
    repository().edit("</zorvel>", SECOND_CHARACTER);
    StageFixture::SetUp();
    window().resize(560, 460);
    window().files().setQuestions(std::make_unique<support::PreparedAnswers>(answers_));
    answers_.unsaved = stage::Questions::Unsaved::Discard;
    answers_.file = folder_.path() / "scene.json";
    ZORVEL::Settings::StorePath(repository().root().c_str());
    CallMainWindow();
    ASSERT_NE(MainWindowClass::window, nullptr);
    settleAll();
    proxies_.follow(scene(), false);
  }
  void TearDown() override {
    ZORVEL::MaxForm::DeleteAll();
    StageFixture::TearDown();
  }

  void walk(unsigned steps) {
    for (unsigned step = 0; step < steps && !HasFailure(); ++step) {
      const Step& next = choose();
      history_.push_back(next.name);
      next.make();
      settleAll();
      proxies_.follow(scene(), next.builds);
      check();
      if (step % 20 == 19) checkUndoAndRedo();
    }
    if (!HasFailure()) return;
    for (const std::string& name : history_) std::cout << name << ' ';
    std::cout << "\nafter " << history_.size() << " steps with ZORVEL_WALK_SEED=" << seed_ << std::endl;
  }

  const unsigned seed_ = fromEnvironment("ZORVEL_WALK_SEED", std::random_device()());

 private:
  struct Step {
    std::string name;
    unsigned weight;
    std::function<void()> make;
    bool builds = false;
  };

  unsigned below(std::size_t count) { return std::uniform_int_distribution<unsigned>(0, unsigned(count) - 1)(random_); }

  const Step& choose() {
    unsigned total = 0;
    for (const Step& step : steps_) total += step.weight;
    unsigned at = below(total);
    for (const Step& step : steps_) {
      if (at < step.weight) return step;
      at -= step.weight;
    }
    return steps_.back();
  }

  static MainWindowClass& manager() { return *MainWindowClass::window; }

  void settleAll() {
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  static void clickOn(QWidget* widget, const QPoint& pixel) {
    manager().activateWindow();
    QTest::mouseClick(widget, Qt::LeftButton, {}, pixel);
  }

  void clickTree() {
    auto* tree = manager().findChild<QTreeWidget*>();
    QList<QTreeWidgetItem*> items;
    for (QTreeWidgetItemIterator item(tree); *item != nullptr; ++item) items.append(*item);
    if (items.isEmpty()) return;
    QTreeWidgetItem* item = items[int(below(std::size_t(items.size())))];
    tree->scrollToItem(item);
    clickOn(tree->viewport(), tree->visualItemRect(item).center());
  }

  void clickTab() {
    auto* bar = manager().findChild<QTabBar*>();
    if (bar->isVisible() && bar->count() > 0)
      clickOn(bar, bar->tabRect(int(below(std::size_t(bar->count())))).center());
  }

  /// A picture or check box of the page or strip that is shown.
  void clickElement() {
    QList<QAbstractButton*> shown;
    for (QScrollArea* panel : manager().findChildren<QScrollArea*>()) {
      for (auto* button : panel->findChildren<QAbstractButton*>()) {
        if (button->isVisible()) shown.append(button);
      }
    }
    if (!shown.isEmpty()) clickOn(shown[int(below(std::size_t(shown.size())))], QPoint(8, 8));
  }

  void clickCreate() {
    for (auto* button : manager().findChildren<QPushButton*>()) {
      if (button->isVisible() && button->text() == "Create") return clickOn(button, button->rect().center());
    }
  }

  QPoint anywhere() { return {int(below(unsigned(view().width()))), int(below(unsigned(view().height())))}; }

  /// The window manager makes active what is clicked.
  void inStage(const std::function<void()>& act) {
    window().activateWindow();
    act();
  }

  void selectSome() {
    const auto nodes = scene().nodes();
    if (nodes.empty()) return;
    scene().select(*nodes[below(nodes.size())], below(2) == 0);
  }

  /// Of what is selected; what is in the selection together with something above it stays where it is.
  static void group() {
    if (scene().selection().empty()) return;
    theHold.Begin();
    MSTR name(L"Walked");
    GetCOREInterface()->GroupNodes(nullptr, &name, TRUE);
    theHold.Accept(L"Group");
  }

  void cancelledDelete() {
    theHold.Begin();
    if (!scene().selection().empty()) GetCOREInterface()->DeleteNode(scene().selection().front().get(), FALSE, FALSE);
    // What comes back in the same step counts as gone.
    proxies_.follow(scene(), false);
    theHold.Cancel();
  }

  void replaceScene(const std::function<void()>& replace) {
    replace();
    proxies_.clear();
  }

  void open() {
    if (!std::filesystem::exists(*answers_.file)) return;
    replaceScene([this] { ASSERT_TRUE(window().files().open(*answers_.file)); });
    EXPECT_EQ(support::sceneNow(), savedScene_) << "opened is not what was saved";
  }

  void save() {
    ASSERT_TRUE(window().files().save(*answers_.file));
    savedScene_ = support::sceneNow();
  }

  void check() {
    EXPECT_EQ(support::inconsistency(scene()), "");
    EXPECT_EQ(proxies_.differences(scene()), "");
    checkStage();
    checkManager();
    for (const ZORVEL::LogEntry& entry : ZORVEL::LogStore::Entries()) {
      EXPECT_NE(entry.level, ZORVEL::DEBUG_ERROR) << QString::fromStdWString(entry.text).toStdString();
    }
    clearLog();
  }

  void checkStage() {
    int rows = 0;
    for (QTreeWidgetItemIterator row(&window().nodes().tree()); *row != nullptr; ++row) ++rows;
    EXPECT_EQ(rows, int(scene().nodes().size()));
    EXPECT_EQ(window().menus().undoAction().isEnabled(), !Application::instance().undo().undoNames().empty());
    EXPECT_EQ(window().menus().redoAction().isEnabled(), !Application::instance().undo().redoNames().empty());
    EXPECT_EQ(window().isWindowModified(), window().document().modified());
    const bool standard = &Application::instance().modes().current() == &Application::instance().modes().standard();
    EXPECT_EQ(window().promptLine().prompt() == "Ready", standard);
    EXPECT_EQ(Application::instance().prompts().top().empty(), standard);
  }

  static QString nameOf(const ZORVEL::DataContainer* record) {
    return record != nullptr ? '"' + ZORVEL::Texts::FromWide(ZORVEL::Texts::Name(record)) + '"' : QString();
  }

  /// What the line at the top has to say of what is chosen.
  static QString choice() {
    const ZORVEL::CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
    if (character == nullptr) return {};
    QString text = "Character: " + nameOf(character);
    const auto add = [&text](const char* before, const wchar_t* title, const ZORVEL::DataContainer* record) {
      if (record != nullptr) text += before + QString::fromWCharArray(title) + ": " + nameOf(record);
    };
    const wchar_t* cloth = Selection2::GetCloth();
    add(", ", L"Outfit", character->GetCloth(cloth));
    if (character->GetCloth(cloth) != nullptr) text += '\n';
    add("", character->GetContainerName(ZORVEL::POSES), character->GetPose(Selection2::GetPose()));
    add(", ", character->GetContainerName(ZORVEL::SKINS), character->GetSkin(Selection2::GetSkin()));
    add(", ", character->GetContainerName(ZORVEL::CLOTH), character->GetStyle(cloth, Selection2::GetStyle()));
    return text;
  }

  /// Which of the window's elements are chosen, by unique id.
  static std::set<int> chosen() {
    std::set<int> uniques;
    const ZORVEL::CharacterData* character = Data2::GetCharacter(Selection2::GetCharacter());
    for (int i = 0; i < Selection2::GetAssetCount(); ++i) uniques.insert(Selection2::GetAsset(i));
    if (character == nullptr) return uniques;
    for (const ZORVEL::DataContainer* one :
         {character->GetPose(Selection2::GetPose()), character->GetSkin(Selection2::GetSkin()),
          character->GetStyle(Selection2::GetCloth(), Selection2::GetStyle())}) {
      if (one != nullptr) uniques.insert(Data2::GetUnique(one));
    }
    return uniques;
  }

  static void checkManager() {
    EXPECT_EQ(manager().windowTitle(), "ZORVEL Manager 1.0 - " + QString::fromWCharArray(ZORVEL::Settings::GetPath()));
    const bool hasCloth = Selection2::GetCloth() != nullptr;
    bool hasButton = false;
    for (const auto* button : manager().findChildren<QPushButton*>()) {
      hasButton = hasButton || (button->isVisible() && button->text() == "Create");
    }
    EXPECT_EQ(hasButton, hasCloth);
    QString line;
    for (const auto* label : manager().findChildren<QLabel*>()) {
      if (label->accessibleName() == "What is chosen") line = label->text();
    }
    EXPECT_TRUE(line.startsWith(choice())) << line.toStdString() << "\nand not\n" << choice().toStdString();
    EXPECT_EQ(line.mid(choice().size()).count(", "), Selection2::GetAssetCount());
    if (!hasCloth) return;
    const std::set<int> wanted = chosen();
    for (const auto& page : manager().GetGeneralSelectorWidget().GetPages()) {
      for (const auto& element : page->GetElements()) {
        const bool isChosen = wanted.count(element->GetUnique()) != 0;
        EXPECT_EQ(element->GetSelected(), isChosen) << element->GetUnique();
        const bool isChecked = element->GetCheckBox() != nullptr ? element->GetCheckBox()->isChecked() : isChosen;
        EXPECT_EQ(isChecked, isChosen) << element->GetUnique();
      }
    }
  }

  void undoAll() {
    while (!Application::instance().undo().undoNames().empty()) {
      stage::EditCommands::undo();
      proxies_.follow(scene(), false);
    }
    settleAll();
    check();
  }

  void redoAll(std::size_t steps) {
    for (std::size_t i = 0; i < steps; ++i) {
      stage::EditCommands::redo();
      proxies_.follow(scene(), false);
    }
    settleAll();
    check();
  }

  /// What the mouse placed is not recorded, so the first time round it may move; after that nothing does.
  void checkUndoAndRedo() {
    redoAll(Application::instance().undo().redoNames().size());
    const nlohmann::ordered_json before = support::sceneNow();
    const std::size_t steps = Application::instance().undo().undoNames().size();
    undoAll();
    const nlohmann::ordered_json bottom = support::sceneNow();
    redoAll(steps);
    const nlohmann::ordered_json after = support::sceneNow();
    EXPECT_EQ(support::recordedPart(after), support::recordedPart(before));
    undoAll();
    EXPECT_EQ(support::sceneNow(), bottom);
    redoAll(steps);
    EXPECT_EQ(support::sceneNow(), after);
  }

  std::mt19937 random_{seed_};
  support::TemporaryFolder folder_;
  support::PreparedAnswers::Answers answers_;
  support::ExpectedProxies proxies_;
  nlohmann::ordered_json savedScene_;
  std::vector<std::string> history_;
  const std::vector<Step> steps_ = {
      {"tree", 6, [this] { clickTree(); }},
      {"tab", 4, [this] { clickTab(); }},
      {"element", 12, [this] { clickElement(); }},
      {"create", 6, [this] { clickCreate(); }, true},
      {"move", 8, [this] { inStage([this] { move(anywhere()); }); }},
      {"click", 10, [this] { inStage([this] { click(anywhere()); }); }},
      {"cancel", 2, [this] { inStage([this] { click(anywhere(), Qt::RightButton); }); }},
      {"escape", 1, [this] { inStage([this] { key(Qt::Key_Escape); }); }},
      {"undo", 6, [this] { inStage([this] { key(Qt::Key_Z, Qt::ControlModifier); }); }},
      {"redo", 5, [this] { inStage([this] { key(Qt::Key_Y, Qt::ControlModifier); }); }},
      {"select", 4, [this] { selectSome(); }},
      {"delete", 3, [this] { inStage([this] { key(Qt::Key_Delete); }); }},
      {"group", 3, [] { group(); }},
      {"held", 1, [this] { cancelledDelete(); }},
      {"reload", 1, [] { ZORVEL::Commands::ReloadRepository(); }},
      {"save", 2, [this] { save(); }},
      {"open", 1, [this] { open(); }},
      {"new", 1, [this] { replaceScene([this] { window().files().newScene(); }); }},
  };
};

TEST_F(Walk, LeavesSceneRegisterAndWindowInStepWhateverIsDone) {
  const unsigned steps = fromEnvironment("ZORVEL_WALK_STEPS", 300);
  RecordProperty("seed", std::to_string(seed_));
  RecordProperty("steps", std::to_string(steps));
  walk(steps);
}

}  // namespace
