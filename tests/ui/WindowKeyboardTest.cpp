#include <gtest/gtest.h>

#include <QtTest/QtTest>
#include <set>

#include "tests/ui/WindowFixture.h"

namespace {

class WindowKeyboard : public support::WindowFixture {
 protected:
  static const QWidget* focus() { return QApplication::focusWidget(); }
  /// Where the keyboard goes when Tab is pressed over and over.
  static std::set<const QWidget*> reached() {
    std::set<const QWidget*> all;
    while (all.insert(focus()).second && all.size() < 100) key(Qt::Key_Tab);
    return all;
  }
  static void focusByTab(const QWidget& widget) {
    for (int i = 0; i < 100 && focus() != &widget; ++i) key(Qt::Key_Tab);
    ASSERT_EQ(focus(), &widget);
  }
};

TEST_F(WindowKeyboard, TabReachesEverything) {
  open();
  clickNode(node("Anna"));
  std::set<const QWidget*> all = reached();
  EXPECT_TRUE(all.count(&tree()));
  for (const auto& preview : window().GetClothWidget().GetElements()) EXPECT_TRUE(all.count(preview->GetPicture()));
  EXPECT_FALSE(all.count(&createButton()));
  clickNode(node("Anna", "Blouse"));
  all = reached();
  EXPECT_TRUE(all.count(&tree()));
  EXPECT_TRUE(all.count(&createButton()));
  EXPECT_TRUE(all.count(tabs().tabBar()));
  for (const char* name : {"Standing", "Sitting", "Walking"})
    EXPECT_TRUE(all.count(element("Pose", name).GetPicture()));
  for (const char* name : {"Standing", "Sitting"}) EXPECT_TRUE(all.count(element("Pose", name).GetCheckBox()));
}

TEST_F(WindowKeyboard, SpaceChoosesClothesPosesAndElements) {
  open();
  clickNode(node("Anna"));
  focusByTab(*window().GetClothWidget().GetElements().front()->GetPicture());
  key(Qt::Key_Space);
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  const ZORVEL::MainWindowElementBase& sitting = element("Pose", "Sitting");
  const QImage plain = shown(*sitting.GetPicture());
  focusByTab(*sitting.GetPicture());
  EXPECT_NE(shown(*sitting.GetPicture()), plain) << "framed";
  key(Qt::Key_Space);
  EXPECT_EQ(checked("Pose"), QStringList("Sitting"));
  EXPECT_EQ(focus(), sitting.GetPicture()) << "the page of the poses stays";
  focusByTab(*element("Pose", "Standing").GetCheckBox());
  key(Qt::Key_Space);
  key(Qt::Key_Space);
  EXPECT_EQ(checked("Pose"), QStringList("Standing"));
  openTab("Things");
  focusByTab(*element("Things", "Lamp").GetCheckBox());
  key(Qt::Key_Space);
  EXPECT_EQ(checked("Things"), (QStringList{"Scarf", "Lamp"}));
  EXPECT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2 a3");
}

TEST_F(WindowKeyboard, AClickFramesNothing) {
  openWithBlouse();
  const QWidget& picture = *element("Pose", "Sitting").GetPicture();
  const QImage plain = shown(picture);
  click(picture);
  ASSERT_EQ(focus(), &picture);
  EXPECT_EQ(shown(picture), plain);
}

TEST_F(WindowKeyboard, KeysWalkThroughTheTabsAndPressTheButton) {
  openWithBlouse();
  ASSERT_TRUE(page("Pose").GetControl()->isAncestorOf(focus())) << "the first page takes the keyboard";
  key(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs().currentIndex(), 1);
  EXPECT_TRUE(page("Skin").GetControl()->isAncestorOf(focus()));
  key(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs().currentIndex(), 0);
  focusByTab(*tabs().tabBar());
  key(Qt::Key_Right);
  EXPECT_EQ(tabs().currentIndex(), 1);
  focusByTab(createButton());
  key(Qt::Key_Space);
  key(Qt::Key_Return);
  EXPECT_EQ(commands().take(), (QStringList{"create", "create"}));
}

TEST_F(WindowKeyboard, AltAndF10OpenTheMenus) {
  openWithBlouse();
  QTest::keyPress(window().windowHandle(), Qt::Key_Alt, Qt::AltModifier);
  QTest::keyRelease(window().windowHandle(), Qt::Key_Alt);
  EXPECT_EQ(focus(), window().GetMenu().GetControl());
  key(Qt::Key_Right);
  key(Qt::Key_Down);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
  settle();
  EXPECT_EQ(selection(), "- - - - m1") << "reloaded";
  EXPECT_TRUE(tabs().isHidden());
  key(Qt::Key_F10);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

TEST_F(WindowKeyboard, ThePointerLeadsTheKeyboardSoThatTheWheelScrollsWhatIsUnderIt) {
  openWithBlouse();
  const auto point = [](const QWidget& widget, const QPoint& at) {
    QTest::mouseMove(window().windowHandle(), widget.mapTo(&window(), at));
    settle();
  };
  point(*tree().viewport(), QPoint(50, 300));
  point(*tree().viewport(), QPoint(51, 300));
  EXPECT_TRUE(tree().hasFocus());
  const QWidget& panel = *page("Pose").GetControl();
  point(panel, QPoint(600, 450));
  point(panel, QPoint(601, 450));
  EXPECT_TRUE(panel.isAncestorOf(focus()));
  const QWidget* box = element("Pose", "Sitting").GetCheckBox();
  const_cast<QWidget*>(box)->setFocus();
  point(panel, QPoint(602, 450));
  EXPECT_EQ(focus(), box) << "it is in the page already";
}

}  // namespace
