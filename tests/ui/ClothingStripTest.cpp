#include <gtest/gtest.h>

#include <QScrollBar>
#include <QWheelEvent>
#include <QtTest/QtTest>

#include "tests/ui/WindowFixture.h"

namespace {

class ClothingStrip : public support::WindowFixture {
 protected:
  static const ZORVEL::PictureBox& picture(const QString& name) {
    const int index = stripNames().indexOf(name);
    return *window().GetClothWidget().GetElements().at(static_cast<std::size_t>(index))->GetPicture();
  }
  static QList<QPoint> places() {
    QList<QPoint> all;
    for (const auto& preview : window().GetClothWidget().GetElements()) all.append(preview->GetPicture()->pos());
    return all;
  }
};

TEST_F(ClothingStrip, ShowsWhatIsThereFirstAndVeilsTheRest) {
  open();
  EXPECT_TRUE(strip().isHidden()) << "nobody is chosen";
  clickNode(node("Anna"));
  EXPECT_TRUE(strip().isVisible());
  EXPECT_EQ(stripNames(), (QStringList{"Blouse", "Dress", "Apron", "Coat"}));
  QImage image = shown(picture("Blouse"));
  EXPECT_EQ(image.size(), QSize(110, 330));
  EXPECT_EQ(image.pixelColor(50, 5), QColor(Qt::red));
  image = shown(picture("Coat"));
  EXPECT_EQ(image.pixelColor(50, 5), QColor(Qt::green));
  EXPECT_EQ(image.pixelColor(50, 25), QColor(Qt::red)) << "below the overlay";
  EXPECT_TRUE(picture("Coat").toolTip().contains("coat")) << "the folder that is missing";
  files().remove("overlay110x330.png");
  files().remove("anna/previews/preview_kd.png");
  clickNode(node("Anna"));
  EXPECT_EQ(stripNames(), (QStringList{"Blouse", "Apron", "Coat"})) << "no picture, no preview";
  EXPECT_NE(node("Anna", "Dress"), nullptr);
  EXPECT_GE(countLogged(L"preview image not found"), 1);
  EXPECT_EQ(shown(picture("Coat")).pixelColor(50, 5), QColor(Qt::red));
}

TEST_F(ClothingStrip, BreaksIntoRowsWhereTheWidthEnds) {
  open();
  clickNode(node("Ben"));
  const QList<QPoint> five = {{15, 15}, {140, 15}, {265, 15}, {390, 15}, {515, 15}, {15, 360}, {140, 360}};
  EXPECT_EQ(places(), five);
  strip().verticalScrollBar()->setValue(100);
  window().SetSize(960, 670);
  settle();
  EXPECT_EQ(strip().GetScrollPosition().y(), 100) << "kept";
  window().SetSize(1200, 670);
  settle();
  const QList<QPoint> seven = {{15, 15}, {140, 15}, {265, 15}, {390, 15}, {515, 15}, {640, 15}, {765, 15}};
  EXPECT_EQ(places(), seven);
  for (const int width : {740, 741}) {
    window().SetSize(width, 670);
    settle();
    EXPECT_EQ(places().at(3), width == 740 ? QPoint(15, 360) : QPoint(390, 15)) << width;
  }
  window().SetSize(525, 670);
  settle();
  EXPECT_EQ(places().mid(0, 3), (QList<QPoint>{{15, 15}, {140, 15}, {15, 360}}));
  EXPECT_EQ(places().back(), QPoint(15, 1050));
  EXPECT_GT(strip().verticalScrollBar()->maximum(), 0);
}

TEST_F(ClothingStrip, TheWheelScrollsWhatIsUnderThePointerWhateverHasTheKeyboard) {
  open();
  clickNode(node("Ben"));
  window().SetSize(525, 500);
  settle();
  ASSERT_TRUE(tree().hasFocus());
  const QPointF at = strip().viewport()->mapTo(&window(), QPoint(60, 100));
  QWheelEvent turned(at, window().mapToGlobal(at.toPoint()), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&turned);
  qApp->notify(window().windowHandle(), &turned);
  EXPECT_GT(strip().GetScrollPosition().y(), 0);
}

TEST_F(ClothingStrip, AClickChoosesTheClothingWhetherItIsThereOrNot) {
  open();
  clickNode(node("Anna"));
  commands().clear();
  click(picture("Dress"));
  EXPECT_EQ(commands().take().front(), "cloth c1 kd, refresh");
  EXPECT_TRUE(strip().isHidden());
  EXPECT_TRUE(tabs().isVisible());
  clickNode(node("Anna"));
  commands().clear();
  click(picture("Coat"));
  EXPECT_EQ(commands().take(), QStringList("cloth c1 kc, refresh")) << "in no pose, so nothing goes with it";
  EXPECT_EQ(selection(), "c1 kc - - -");
  EXPECT_EQ(names("Pose"), (QStringList{"Walking", "Standing", "Sitting"}));
  EXPECT_EQ(names("Skin"), QStringList());
  EXPECT_EQ(names("Things"), QStringList());
}

}  // namespace
