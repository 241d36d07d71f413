#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <maxscript/maxscript.h>

#include <QImage>

#include "host/actions/ActionManager.h"
#include "host/actions/IconFolders.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"
#include "host/services/Listener.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::ActionManager;
using host::QuickAccessBar;

/// A table with texts of its own, as a plug-in may make one.
class Table : public ActionTable {
 public:
  static Table* make(ActionTableId id, const wchar_t* name, int& ended) {
    MSTR text(name);
    ActionDescription actions[] = {{10, 1, 1, 1}, {11, 1, 1, 1}};
    return new Table(id, text, actions, ended);
  }
  ~Table() override { ++ended_; }
  BOOL GetButtonText(int commandId, MSTR& text) override {
    if (ActionTable::GetButtonText(commandId, text) == FALSE) return FALSE;
    text = commandId == 10 ? L"Ten" : L"Eleven";
    return TRUE;
  }

 private:
  Table(ActionTableId id, MSTR& name, ActionDescription* actions, int& ended)
      : ActionTable(id, id, name, nullptr, 2, actions, nullptr), ended_(ended) {}
  int& ended_;
};

class Counting : public ActionCallback {
 public:
  BOOL ExecuteAction(int commandId) override {
    last = commandId;
    ++count;
    return TRUE;
  }
  int last = 0;
  int count = 0;
};

TEST(ActionManager, OwnsTablesOnceAndRunsOnlyWhatIsActive) {
  int ended = 0;
  Counting callback;
  Counting other;
  {
    ActionManager manager;
    manager.RegisterActionTable(nullptr);
    manager.RegisterActionTable(Table::make(5, L"Five", ended));
    manager.RegisterActionTable(Table::make(5, L"Five again", ended));
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(manager.NumActionTables(), 1);
    EXPECT_EQ(manager.GetTable(1), nullptr);
    EXPECT_EQ(manager.FindTable(6), nullptr);
    EXPECT_EQ(manager.GetTable(0)->CommandAt(2), -1);

    EXPECT_FALSE(manager.executeAction(5, 10));
    EXPECT_EQ(manager.ActivateActionTable(&callback, 6), 0);
    EXPECT_NE(manager.ActivateActionTable(&callback, 5), 0);
    EXPECT_EQ(manager.ActivateActionTable(&other, 5), 0);
    EXPECT_TRUE(manager.executeAction(5, 11));
    EXPECT_TRUE(manager.executeAction(5, 10));
    EXPECT_FALSE(manager.executeAction(5, 12));
    EXPECT_EQ(manager.DeactivateActionTable(&other, 5), 0);
    EXPECT_NE(manager.DeactivateActionTable(&callback, 5), 0);
    EXPECT_EQ(manager.DeactivateActionTable(&callback, 5), 0);
    EXPECT_FALSE(manager.executeAction(5, 10));
    EXPECT_EQ(callback.count, 2);
    EXPECT_EQ(callback.last, 10);
    EXPECT_EQ(other.count, 0);
  }
  EXPECT_EQ(ended, 2);
}

TEST(QuickAccessBar, HoldsEachActionOnceAndWaitsForTablesToCome) {
  int ended = 0;
  ActionManager manager;
  QuickAccessBar bar(manager);
  int changes = 0;
  bar.changed = [&] { ++changes; };
  manager.changed = [&] { bar.followTables(); };
  EXPECT_EQ(bar.add(L"Six", L"Ten"), -1);
  EXPECT_EQ(bar.add(L"Six", L"Ten"), -1);
  manager.RegisterActionTable(Table::make(5, L"Five", ended));
  EXPECT_EQ(bar.add(L"Five", L"Twelve"), -1);
  EXPECT_EQ(bar.add(L"Five", L"Eleven"), 0);
  EXPECT_EQ(bar.add(L"Five", L"Ten"), 1);
  EXPECT_EQ(bar.add(L"Five", L"Eleven"), 0);
  manager.RegisterActionTable(Table::make(6, L"Six", ended));
  ASSERT_EQ(bar.buttons().size(), 3U);
  EXPECT_EQ(bar.buttons()[2].table, 6U);
  EXPECT_EQ(bar.buttons()[2].command, 10);
  EXPECT_EQ(changes, 3);
  manager.removeTable(5);
  ASSERT_EQ(bar.buttons().size(), 1U);
  EXPECT_EQ(bar.buttons()[0].table, 6U);
}

TEST(IconFolders, CutsTheIconOutOfTheStripAndItsMask) {
  const support::TemporaryFolder folder;
  QImage icons(32, 16, QImage::Format_RGB32);
  icons.fill(Qt::red);
  for (int y = 0; y < 16; ++y) {
    for (int x = 16; x < 32; ++x) icons.setPixelColor(x, y, Qt::blue);
  }
  QImage mask(32, 16, QImage::Format_RGB32);
  mask.fill(Qt::white);
  mask.setPixelColor(16, 0, Qt::black);
  ASSERT_TRUE(icons.save(QString::fromStdString((folder.path() / "Shop_16I.bmp").string()), "BMP"));
  ASSERT_TRUE(mask.save(QString::fromStdString((folder.path() / "shop_16a.bmp").string()), "BMP"));
  host::IconFolders folders;
  folders.set({folder.path() / "none", folder.path()});
  const MaxBmpFileIcon second(L"shop", 2);
  const QImage picture = folders.picture(&second, 16);
  ASSERT_EQ(picture.size(), QSize(16, 16));
  EXPECT_EQ(picture.pixelColor(5, 5), QColor(Qt::blue));
  EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
  EXPECT_TRUE(folders.picture(&second, 24).isNull());
  for (const int index : {0, 3}) {
    const MaxBmpFileIcon outside(L"shop", index);
    EXPECT_TRUE(folders.picture(&outside, 16).isNull());
  }
  EXPECT_TRUE(folders.picture(nullptr, 16).isNull());
}

TEST(Scripts, RunTheFormsThatAreKnownAndRefuseTheRestInOneLine) {
  host::Listener& listener = host::Application::instance().listener();
  for (const wchar_t* text : {L"qat.add \"Somewhere\" \"Sometime\"", L" QAT.Add  \"Somewhere\" \"Sometime\" ",
                              L"animButtonState = true", L"animbuttonstate=false"}) {
    EXPECT_EQ(ExecuteMAXScriptScript(text), TRUE);
  }
  for (const wchar_t* text :
       {L"", L"qat.add", L"qat.add \"a\"", L"qat.add \"a\" \"b", L"qat.add a b", L"animButtonState",
        L"animButtonState=maybe", L"actionMan.executeAction 1 2", L"actionMan.executeAction \"1\" \"2\"",
        L"actionMan.executeAction -1 \"2\"", L"actionMan.executeAction 99999999999 \"2\"",
        L"actionMan.executeAction 1 \"99999999999999999999\"", L"actionMan.executeAction 12345 \"40001\"",
        L"delete $*"}) {
    listener.clear();
    EXPECT_EQ(ExecuteMAXScriptScript(text), FALSE);
    EXPECT_EQ(listener.lines().size(), 1U);
  }
  EXPECT_EQ(ExecuteMAXScriptScript(nullptr), FALSE);
}

}  // namespace
