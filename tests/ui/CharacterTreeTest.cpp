#include <gtest/gtest.h>

#include <QtTest/QtTest>

#include "model/Data2.h"
#include "tests/ui/WindowFixture.h"

namespace {

class CharacterTreeWidget : public support::WindowFixture {
 protected:
  static QString current() { return tree().currentItem() != nullptr ? tree().currentItem()->text(0) : QString(); }
};

TEST_F(CharacterTreeWidget, HoldsTheCharactersAndClothesThatCanBeUsed) {
  files().remove("ben");
  ZORVEL::Data2::SetValidated(true);
  clearLog();
  open();
  ASSERT_EQ(tree().topLevelItemCount(), 1) << "the second one's folder has gone";
  const QTreeWidgetItem* top = node("Anna");
  ASSERT_NE(top, nullptr);
  ASSERT_EQ(top->childCount(), 2) << "two have no folder";
  EXPECT_EQ(top->child(0)->text(0), "Blouse");
  EXPECT_EQ(top->child(1)->text(0), "Dress");
  EXPECT_FALSE(top->isExpanded());
  EXPECT_EQ(tree().palette().color(QPalette::Base), QColor(68, 68, 68));
  EXPECT_EQ(tree().palette().color(QPalette::Text), QColor(Qt::white));
  EXPECT_EQ(countLogged(L"create character nodes..."), 1);
  EXPECT_EQ(countLogged(L"create cloth nodes..."), 1);
}

TEST_F(CharacterTreeWidget, AClickChoosesACharacterAndAnotherOneChoosesItAgain) {
  open();
  clickNode(node("Anna"));
  EXPECT_EQ(selection(), "c1 - - - -");
  const QStringList twice = {"character c1, refresh", "character c1, refresh"};
  EXPECT_EQ(support::CommandLog::Take(), twice) << "after the selection, and after the click";
  expectLogged(ZORVEL::DEBUG_INFO, L"Click on TreeView...");
  expectLogged(ZORVEL::DEBUG_INFO, L"Select Character...");
  clickNode(node("Anna", "Dress"));
  EXPECT_EQ(selection(), "c1 kd p1 s1 - a4 a9");
  expectLogged(ZORVEL::DEBUG_INFO, L"Click on TreeView...");
  EXPECT_EQ(countLogged(L"Select Character..."), 0);
  clearLog();
  clickNode(node("Anna"));
  support::CommandLog::Clear();
  clickNode(node("Anna"));
  EXPECT_EQ(support::CommandLog::Take(), QStringList("character c1, refresh"));
  EXPECT_EQ(selection(), "c1 - - - -");
  EXPECT_EQ(countLogged(L"Click on TreeView..."), 1);
  EXPECT_EQ(countLogged(L"Select Character..."), 2);
}

TEST_F(CharacterTreeWidget, AClickOnAClothingChoosesItWithItsCharacterOnceAndTheFirstOfEverythingWithIt) {
  open();
  clickNode(node("Ben"));
  support::CommandLog::Clear();
  clickNode(node("Anna", "Blouse"));
  const QStringList sent = {
      "cloth c1 kb, refresh", "pose p1", "skin s1", "style m1", "asset a2", "asset a4", "asset a5", "asset g1m2"};
  EXPECT_EQ(support::CommandLog::Take(), sent);
  clickNode(node("Anna", "Blouse"));
  EXPECT_EQ(support::CommandLog::Take(), QStringList()) << "it is chosen already";
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  clickNode(node("Ben", "Number 1"));
  EXPECT_EQ(selection(), "c2 k1 - s1 -") << "the skin stays, though this character has no such skin";
  EXPECT_EQ(info(), "Character: \"Ben\", Outfit: \"Number 1\"\n");
}

TEST_F(CharacterTreeWidget, WalkingByKeysChoosesOnTheWayAndKeepsTheKeyboard) {
  open();
  tree().setFocus();
  key(Qt::Key_Down);
  if (current() == "Ben") key(Qt::Key_Up);
  EXPECT_EQ(selection(), "c1 - - - -");
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  EXPECT_EQ(current(), "Blouse");
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  EXPECT_TRUE(tree().hasFocus());
  key(Qt::Key_Down);
  key(Qt::Key_Down);
  EXPECT_EQ(current(), "Ben");
  EXPECT_EQ(selection(), "c2 - - - -");
  EXPECT_TRUE(tree().hasFocus());
  tree().setFocus();
  clickNode(node("Anna", "Blouse"));
  EXPECT_FALSE(tree().hasFocus()) << "a click goes on to the pages";
}

TEST_F(CharacterTreeWidget, SaysWhenARepositoryHasNobody) {
  open();
  const QImage filled = shown(tree());
  files().folder().write("zorvel.xml", "<zorvel/>");
  ZORVEL::Data2::Clear();
  open();
  window().Rebuild();
  settle();
  EXPECT_EQ(tree().topLevelItemCount(), 0);
  const QImage empty = shown(tree());
  EXPECT_NE(empty, filled);
  int written = 0;
  for (int y = 5; y < 60; ++y) {
    for (int x = 5; x < 150; ++x) written += empty.pixelColor(x, y) != QColor(68, 68, 68) ? 1 : 0;
  }
  EXPECT_GT(written, 100) << "a line of text";
  EXPECT_TRUE(strip().isHidden());
  EXPECT_TRUE(tabs().isHidden());
  EXPECT_TRUE(createButton().isHidden());
}

}  // namespace
