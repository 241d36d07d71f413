#include <max.h>

#include <QPainter>
#include <QtTest/QtTest>

#include "apps/stage/viewport/TilePainter.h"
#include "host/application/Application.h"
#include "host/scene/Scene.h"
#include "host/view/SceneView.h"
#include "tests/stage/StageFixture.h"

namespace {

class ViewportWidget : public support::StageFixture {
 protected:
  void drag(const QPoint& by, Qt::MouseButton button, Qt::KeyboardModifiers keys = {}) {
    const QPoint from(200, 200);
    press(from, button, keys);
    move(from + by);
    release(from + by, button, keys);
  }
  const host::Viewport& viewport() { return view().viewport(); }
  static std::vector<std::wstring> selected() {
    std::vector<std::wstring> names;
    for (const auto& one : scene().selection()) names.emplace_back(one->GetName());
    return names;
  }
  static const Point3 TABLE;
  static const Point3 RAMP;
};

using Names = std::vector<std::wstring>;

const Point3 ViewportWidget::TABLE(210, 150, 75);
const Point3 ViewportWidget::RAMP(0, 265, 27);

/// The share of pixels that differ by more than the eye would see.
double difference(const QImage& a, const QImage& b) {
  int differing = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb one = a.pixel(x, y);
      const QRgb other = b.pixel(x, y);
      if (std::abs(qRed(one) - qRed(other)) > 2 || std::abs(qAlpha(one) - qAlpha(other)) > 2) ++differing;
    }
  }
  return differing / static_cast<double>(a.width() * a.height());
}

TEST_F(ViewportWidget, TheMousePansOrbitsAndZooms) {
  const Point3 target = viewport().target();
  drag({40, 10}, Qt::MiddleButton);
  EXPECT_NE(viewport().target(), target);
  const float yaw = viewport().yaw();
  drag({40, 10}, Qt::MiddleButton, Qt::AltModifier);
  EXPECT_NE(viewport().yaw(), yaw);
  const float orbited = viewport().yaw();
  drag({40, 10}, Qt::LeftButton, Qt::AltModifier);
  EXPECT_NE(viewport().yaw(), orbited);
  const float distance = viewport().distance();
  QWheelEvent forward(QPointF(200, 200), view().mapToGlobal(QPoint(200, 200)), {}, {0, 120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(&view(), &forward);
  EXPECT_LT(viewport().distance(), distance);
  EXPECT_TRUE(selected().empty());
}

TEST_F(ViewportWidget, AClickSelectsWhatIsSeenThereAndKeysFrameIt) {
  click(pixelOf(TABLE));
  EXPECT_EQ(selected(), Names({L"Table"}));
  click(pixelOf(RAMP), Qt::LeftButton, Qt::ControlModifier);
  EXPECT_EQ(selected(), Names({L"Table", L"Ramp"}));
  click(pixelOf(RAMP));
  EXPECT_EQ(selected(), Names({L"Ramp"}));

  const float far = viewport().distance();
  key(Qt::Key_Z);
  const float near = viewport().distance();
  EXPECT_LT(near, far);
  key(Qt::Key_Z, Qt::ShiftModifier);
  EXPECT_GT(viewport().distance(), near);
  click(QPoint(5, 5));
  EXPECT_TRUE(selected().empty());
}

TEST_F(ViewportWidget, ThePictureAfterManyMovesIsThatOfTheSceneAsItIs) {
  view().resize(320, 240);
  ASSERT_TRUE(waitForPicture());
  const std::size_t before = view().picture().worker().tilesSpoiled();
  INode* lamp = node(L"Lamp");
  for (int i = 1; i <= 20; ++i) {
    Matrix3 tm = lamp->GetNodeTM(0);
    tm.Translate(Point3(-8, 0, 0));
    lamp->SetNodeTM(0, tm);
    GetCOREInterface()->RedrawViews(0);
    QCoreApplication::processEvents();
  }
  EXPECT_TRUE(waitForPicture());
  EXPECT_GT(view().picture().worker().tilesSpoiled(), before);

  const QImage shown = view().picture().image();
  stage::TileBoard board;
  board.resize(shown.size());
  const stage::TilePainter painter(host::Application::instance().sceneView().rays(), viewport().camera(), shown.size());
  const std::atomic<bool> stop{false};
  QImage fresh(shown.size(), QImage::Format_ARGB32_Premultiplied);
  QPainter paint(&fresh);
  paint.setCompositionMode(QPainter::CompositionMode_Source);
  while (auto task = board.next()) {
    task->level = stage::TileBoard::QUALITY_COUNT - 1;
    paint.drawImage(task->where.topLeft(), painter.paint(*task, stop));
    board.finish(*task);
  }
  paint.end();
  EXPECT_LT(difference(shown, fresh), 0.001);
}

}  // namespace
