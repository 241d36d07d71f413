#include "ui/MainWindow.h"

#include <gtest/gtest.h>

#include <Qt/QmaxMainWindow.h>
#include <maxapi.h>

#include <QMenu>
#include <QtTest/QtTest>
#include <filesystem>
#include <memory>
#include <optional>

#include "core/LogStore.h"
#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/FileDialog.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "tests/ui/OpenedAddresses.h"
#include "tests/ui/WindowFixture.h"

namespace {

using host::Application;
using ZORVEL::MainWindowClass;
using ZORVEL::Selection2;

class MainWindowForm : public support::WindowFixture {
 protected:
  static void choose(const QString& menuTitle, const QString& entry) {
    const QMenuBar& bar = *window().GetMenu().GetControl();
    for (QAction* title : bar.actions()) {
      if (title->text() != menuTitle) continue;
      click(bar, bar.actionGeometry(title).center());
      QMenu& menu = *title->menu();
      ASSERT_TRUE(menu.isVisible());
      for (QAction* action : menu.actions()) {
        if (action->text() != entry) continue;
        QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, {}, menu.actionGeometry(action).center());
      }
    }
    settle();
  }
  static void answer(const std::optional<std::filesystem::path>& file) {
    Application::instance().fileDialog().setProvider([file](const auto& /*question*/) { return file; });
  }
  static QList<QRect> places() {
    return {tree().geometry(), strip().geometry(), tabs().geometry(),
            window().GetCharacterInfo().GetControl()->geometry(), createButton().geometry()};
  }
  static void expectNothingChosen() {
    EXPECT_EQ(selection().left(7), "- - - -");
    EXPECT_TRUE(strip().isHidden());
    EXPECT_TRUE(tabs().isHidden());
    EXPECT_TRUE(createButton().isHidden());
    EXPECT_EQ(info(), "");
    EXPECT_EQ(window().GetCharacterInfo().GetControl()->toolTip(), "");
  }
};

TEST_F(MainWindowForm, WithoutAWindowARefreshOnlyLogs) {
  ZORVEL::MainWindow::Rebuild();
  ZORVEL::MainWindow::RebuildTabs();
  ZORVEL::MainWindow::UpdateCharacterSelectionFromGUI();
  ZORVEL::MainWindow::UpdateElementSelection();
  ZORVEL::MainWindow::UpdateInfo();
  expectComplaints({L"MainWindow::Rebuild : no window..", L"MainWindow::RebuildTabs : no window..",
                    L"MainWindow::UpdateCharacterSelectionFromGUI : no window..",
                    L"MainWindow::UpdateElementSelection : no window..",
                    L"MainWindow::UpdateElementSelection : no window.."});
}

TEST_F(MainWindowForm, OpensOnceAndAnewAfterItWasClosed) {
  openWithBlouse();
  const MainWindowClass* first = &window();
  EXPECT_EQ(window().windowTitle().toStdWString(),
            std::wstring(L"ZORVEL Manager 1.0 - ") + ZORVEL::Settings::GetPath());
  EXPECT_FALSE(window().isModal());
  EXPECT_FALSE(window().windowFlags() & Qt::WindowMaximizeButtonHint);
  EXPECT_EQ(window().minimumSize(), QSize(525 - 16, 500 - 39));
  expectLogged(ZORVEL::DEBUG_INFO, L"MainWindow::OpenMainWindow : create...");
  window().showMinimized();
  commands().clear();
  open();
  EXPECT_EQ(&window(), first);
  EXPECT_FALSE(window().isMinimized());
  EXPECT_EQ(commands().take().mid(0, 3), (QStringList{"pose p1", "skin s1", "style m1"})) << "filled again";
  expectLogged(ZORVEL::DEBUG_INFO, L"MainWindow::OpenMainWindow : display...");
  EXPECT_TRUE(window().close());
  EXPECT_EQ(MainWindowClass::window, nullptr);
  settle();
  expectLogged(ZORVEL::DEBUG_INFO, L"Close main window...");
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2") << "the choice stays";
  open();
  EXPECT_EQ(tabs().count(), 7);
  EXPECT_EQ(checked("Hats"), QStringList("Bowler"));
  EXPECT_EQ(countLogged(L"MainWindow::OpenMainWindow : create..."), 1);
  ZORVEL::Settings::StorePath(L"C:\\elsewhere");
  open();
  EXPECT_EQ(window().windowTitle(), "ZORVEL Manager 1.0 - C:\\elsewhere");
}

TEST_F(MainWindowForm, BelongsToTheHostsWindowAndHoldsItsShortcutsWhileItIsUsed) {
  auto host = std::make_unique<MaxSDK::QmaxMainWindow>();
  Application::instance().interface().setMainWindow(host.get());
  host->show();
  EXPECT_TRUE(AcceleratorsEnabled());
  open();
  EXPECT_EQ(window().parentWidget(), host.get());
  EXPECT_TRUE(window().isWindow());
  EXPECT_FALSE(AcceleratorsEnabled());
  host->activateWindow();
  EXPECT_TRUE(QTest::qWaitFor([] { return AcceleratorsEnabled() == TRUE; }));
  window().Activate();
  EXPECT_TRUE(QTest::qWaitFor([] { return AcceleratorsEnabled() == FALSE; }));
  QHideEvent hidden;
  QApplication::sendEvent(&window(), &hidden);
  EXPECT_TRUE(AcceleratorsEnabled()) << "whatever becomes of its activation";
  Application::instance().interface().setMainWindow(nullptr);
  host.reset();
  EXPECT_EQ(MainWindowClass::window, nullptr);
  EXPECT_TRUE(AcceleratorsEnabled());
}

TEST_F(MainWindowForm, KeepsItsControlsAtTheirEdges) {
  openWithBlouse();
  const QList<QRect> plain = {
      {12, 95, 155, 520}, {185, 95, 732, 520}, {185, 95, 733, 524}, {185, 37, 600, 50}, {785, 37, 132, 50}};
  EXPECT_EQ(QSize(window().GetWidth(), window().GetHeight()), QSize(950, 670));
  EXPECT_EQ(places(), plain);
  const QList<QRect> large = {
      {12, 95, 155, 750}, {185, 95, 1082, 750}, {185, 95, 1083, 754}, {185, 37, 950, 50}, {1135, 37, 132, 50}};
  window().SetSize(1300, 900);
  settle();
  EXPECT_EQ(places(), large);
  ZORVEL::MainWindow::Rebuild();
  settle();
  EXPECT_EQ(places(), large);
  EXPECT_EQ(QSize(window().GetWidth(), window().GetHeight()), QSize(1300, 900));
  window().SetSize(950, 670);
  settle();
  EXPECT_EQ(places(), plain);
}

TEST_F(MainWindowForm, RefitsAndRefreshesFromAWidthOf500) {
  openWithBlouse();
  const auto second = [] { return element("Pose", "Sitting").GetPicture()->x(); };
  const auto third = [] { return element("Pose", "Walking").GetPicture()->pos(); };
  window().setMinimumSize(0, 0);
  window().SetSize(499, 670);
  settle();
  EXPECT_EQ(third(), QPoint(245, 15));
  EXPECT_EQ(tree().height(), 520);
  Selection2::SetCloth(nullptr);
  ZORVEL::MainWindow::UpdateCharacterSelectionFromGUI();
  EXPECT_TRUE(tabs().isVisible()) << "nothing at all";
  Selection2::SetCloth(L"kb");
  window().SetSize(500, 670);
  settle();
  EXPECT_EQ(second(), 130);
  EXPECT_EQ(third(), QPoint(15, 380));
  ZORVEL::MainWindow::UpdateCharacterSelectionFromGUI();
  EXPECT_EQ(tabs().size(), QSize(500 - 217, 524));
}

TEST_F(MainWindowForm, TellsWhatIsChosenAndOffersToBuildItOnceThereIsClothing) {
  open();
  expectNothingChosen();
  clickNode(node("Anna"));
  EXPECT_EQ(info(), "Character: \"Anna\"");
  EXPECT_TRUE(createButton().isHidden());
  clickNode(node("Anna", "Blouse"));
  EXPECT_EQ(info(),
            "Character: \"Anna\", Outfit: \"Blouse\"\nPose: \"Standing\", Skin: \"Light\", Fabric: \"Red\"\n\"Scarf\", "
            "\"Bowler\", \"Bench:Pine\", ");
  EXPECT_TRUE(createButton().isVisible());
  Selection2::ClearAssets();
  Selection2::AddAsset(99999);
  Selection2::SetCloth(L"unknown");
  Selection2::SetSkin(L"unknown");
  ZORVEL::MainWindow::UpdateInfo();
  EXPECT_EQ(info(), "Character: \"Anna\"Pose: \"Standing\"");
  ZORVEL::MainWindow::UpdateCharacterSelectionFromGUI();
  EXPECT_FALSE(titles().contains("Fabric"));
  settle();
  ZORVEL::MainWindow::UpdateElementSelection();
  Selection2::SetCharacter(L"unknown");
  ZORVEL::MainWindow::UpdateInfo();
  EXPECT_EQ(info(), "");
  expectLogged(ZORVEL::DEBUG_INFO, L"current char object is nullptr");
}

TEST_F(MainWindowForm, BuildsTheChosenCharacterAndStartsPlacingIt) {
  openWithBlouse();
  const CommandMode* before = GetCOREInterface()->GetCommandMode();
  const std::vector<std::wstring>& scripts = Application::instance().scripts().texts();
  const std::size_t scriptsBefore = scripts.size();
  click(createButton());
  EXPECT_EQ(commands().take(), QStringList("create"));
  ASSERT_EQ(scripts.size(), scriptsBefore + 1);
  EXPECT_EQ(scripts.back(), L"animButtonState=false") << "no keys are recorded";
  EXPECT_NE(GetCOREInterface()->GetINodeByName(L"ZORVEL Character Anna"), nullptr);
  EXPECT_NE(GetCOREInterface()->GetCommandMode(), before);
  EXPECT_TRUE(window().isVisible());
}

TEST_F(MainWindowForm, ItsMenuVisitsTheShopReloadsAndAsksForAnotherRepository) {
  support::OpenedAddresses opened;
  openWithBlouse();
  choose("ZORVEL", "Visit Shop");
  EXPECT_EQ(opened.take().size(), 1);
  choose("Repository", "Reload");
  expectNothingChosen();
  EXPECT_EQ(commands().take(), QStringList()) << "the old pages say nothing when they go";
  clickNode(node("Anna", "Blouse"));
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  clickNode(node("Anna"));
  answer(std::nullopt);
  choose("Repository", "Set Repository");
  EXPECT_EQ(selection(), "- - - - -") << "the choice is emptied before the question";
  EXPECT_NE(node("Anna"), nullptr);
  clickNode(node("Anna", "Blouse"));
  const support::TemporaryFolder empty;
  answer(empty.write("zorvel.xml", "<zorvel/>"));
  choose("Repository", "Set Repository");
  expectNothingChosen();
  EXPECT_EQ(tree().topLevelItemCount(), 0);
  const QString folder = QString::fromStdString(empty.path().filename().string()) + '\\';
  EXPECT_TRUE(window().windowTitle().endsWith(folder)) << window().windowTitle().toStdString();
  expectLogged(ZORVEL::DEBUG_INFO, L"No Characters found!");
}

TEST_F(MainWindowForm, SurvivesAReloadInTheMiddleOfAClick) {
  openWithBlouse();
  openTab("Skin");
  const QCheckBox& box = *element("Skin", "Dark").GetCheckBox();
  const QPoint place = box.mapTo(&window(), QPoint(6, 6));
  QTest::mousePress(window().windowHandle(), Qt::LeftButton, {}, place);
  ZORVEL::Commands::ReloadRepository();
  settle();
  QTest::mouseRelease(window().windowHandle(), Qt::LeftButton, {}, place);
  settle();
  EXPECT_EQ(commands().take(), QStringList());
  expectNothingChosen();

  clickNode(node("Anna", "Blouse"));
  commands().clear();
  files().folder().write("zorvel.xml", "<zorvel/>");
  bool reloaded = false;
  ZORVEL::LogStore::SetListener([&](ZORVEL::DEBUG_TYPE, const wchar_t* text) {
    if (reloaded || std::wstring(text) != L"selected a pose in the GUI") return;
    reloaded = true;
    ZORVEL::Commands::ReloadRepository();
  });
  clickBox("Pose", "Sitting");
  ZORVEL::LogStore::SetListener({});
  EXPECT_TRUE(reloaded);
  EXPECT_EQ(commands().take(), QStringList("pose unknown, refresh"));
  expectNothingChosen();
}

TEST_F(MainWindowForm, TakesClicksOnRecordsThatAreNoLongerThere) {
  openWithBlouse();
  ZORVEL::Data2::Clear();
  clickBox("Skin", "Dark");
  clickBox("Things", "Lamp");
  clickPicture("Things", "Lamp");
  clickBox("Pose", "Sitting");
  EXPECT_EQ(commands().take(), (QStringList{"skin unknown, refresh", "asset unknown, refresh",
                                            "without unknown, refresh", "pose unknown, refresh"}));
  EXPECT_EQ(tabs().count(), 1);
  clickNode(node("Anna"));
  clickNode(node("Ben"));
  ZORVEL::MainWindow::Rebuild();
  settle();
  EXPECT_EQ(tree().topLevelItemCount(), 0);
}

}  // namespace
