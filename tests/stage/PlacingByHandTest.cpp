#include <max.h>

#include <QtTest/QtTest>
#include <cmath>

#include "apps/stage/StageMenus.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "tests/stage/StageFixture.h"

namespace {

/// On the ground, in nobody's way.
const Point3 ON_GROUND(-60, 40, 0);

class PlacingByHand : public support::StageFixture {
 protected:
  /// The node that is being placed: the plug-in's own parent of the character.
  static INode* placed() {
    for (host::Node* node : scene().nodes()) {
      if (node->IsGroupMember() != FALSE && node->GetParentNode()->IsGroupHead() != FALSE) return node;
    }
    return nullptr;
  }
  static Point3 place(INode* node) { return node->GetNodeTM(0).GetTrans(); }
  static bool standardMode() {
    return &host::Application::instance().modes().current() == &host::Application::instance().modes().standard();
  }
};

void expectNear(const Point3& place, const Point3& wanted, float tolerance) {
  EXPECT_NEAR(place.x, wanted.x, tolerance);
  EXPECT_NEAR(place.y, wanted.y, tolerance);
  EXPECT_NEAR(place.z, wanted.z, tolerance);
}

TEST_F(PlacingByHand, ACharacterFollowsTheMouseOverGroundTableAndLampAndIsTurnedByTheSecondStep) {
  createCharacter();
  settle();
  EXPECT_EQ(window().promptLine().prompt(), "Place your ZORVEL Character");
  EXPECT_EQ(view().cursor().shape(), Qt::CrossCursor);

  // A pixel on the ground is about a scene unit wide here.
  move(pixelOf(ON_GROUND));
  expectNear(place(placed()), ON_GROUND, 2.0F);
  const Point3 onTable(190, 140, 75);
  move(pixelOf(onTable));
  expectNear(place(placed()), onTable, 2.0F);
  move(pixelOf(Point3(210, 150, 310)));
  EXPECT_NEAR(place(placed()).z, 0.0F, 1e-3F) << "nothing stands on a helper";
  move(pixelOf(onTable));

  click(pixelOf(onTable));
  EXPECT_EQ(window().promptLine().prompt(), "Rotate your ZORVEL Character");
  move(pixelOf(onTable) + QPoint(100, 30));
  const Matrix3 turned = placed()->GetNodeTM(0);
  EXPECT_NEAR(std::atan2(turned.GetRow(0).y, turned.GetRow(0).x), 1.0F, 1e-4F);

  click(pixelOf(onTable) + QPoint(100, 30));
  EXPECT_TRUE(standardMode());
  INode* head = placed()->GetParentNode();
  expectNear(place(head), onTable, 2.0F);
  EXPECT_TRUE(static_cast<bool>(placed()->Selected()));
  EXPECT_TRUE(window().menus().undoAction().isEnabled());
}

TEST_F(PlacingByHand, ARightClickLeavesNothingBehindAndUndoAfterItDoesNoHarm) {
  const std::size_t before = scene().nodes().size();
  createCharacter();
  move(pixelOf(ON_GROUND));
  click(pixelOf(ON_GROUND));
  click(pixelOf(ON_GROUND), Qt::RightButton);
  EXPECT_EQ(scene().nodes().size(), before);
  EXPECT_TRUE(standardMode());
  key(Qt::Key_Z, Qt::ControlModifier);
  key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(scene().nodes().size(), before);
  EXPECT_EQ(window().nodes().tree().topLevelItemCount(), static_cast<int>(before));
}

TEST_F(PlacingByHand, EscapeCancelsInEitherStepAndTheSelectToolLeavesTheCharacterWhereItIs) {
  const QAction& select = window().menus().selectAction();
  const std::size_t before = scene().nodes().size();
  EXPECT_TRUE(select.isChecked());
  for (const bool clicked : {false, true}) {
    createCharacter();
    move(pixelOf(ON_GROUND));
    if (clicked) click(pixelOf(ON_GROUND));
    EXPECT_FALSE(select.isChecked());
    key(Qt::Key_Escape);
    EXPECT_EQ(scene().nodes().size(), before);
    EXPECT_TRUE(standardMode());
    EXPECT_TRUE(select.isChecked());
    EXPECT_EQ(window().promptLine().prompt(), "Ready");
  }
  createCharacter();
  move(pixelOf(ON_GROUND));
  for (int twice = 0; twice < 2; ++twice) {
    key(Qt::Key_Q);
    EXPECT_TRUE(standardMode());
    EXPECT_TRUE(select.isChecked());
  }
  key(Qt::Key_Escape);
  EXPECT_GT(scene().nodes().size(), before) << "there is nothing to cancel any more";
  click(pixelOf(Point3(210, 150, 75)));
  EXPECT_FALSE(scene().selection().empty());
  EXPECT_EQ(window().promptLine().prompt(), "Ready");
}

TEST_F(PlacingByHand, NavigatingInTheMiddleOfAPlacementIsNoneOfItsBusiness) {
  createCharacter();
  move(pixelOf(ON_GROUND));
  const Point3 stood = place(placed());
  const float yaw = view().viewport().yaw();
  const QPoint from = pixelOf(ON_GROUND);
  press(from, Qt::MiddleButton, Qt::AltModifier);
  move(from + QPoint(60, 20));
  release(from + QPoint(60, 20), Qt::MiddleButton, Qt::AltModifier);
  EXPECT_NE(view().viewport().yaw(), yaw);
  EXPECT_EQ(place(placed()), stood);
  EXPECT_EQ(window().promptLine().prompt(), "Place your ZORVEL Character");
  click(pixelOf(ON_GROUND), Qt::RightButton);
}

TEST_F(PlacingByHand, AWholeUseCanBeUndoneAndMadeAgain) {
  const std::size_t before = scene().nodes().size();
  createCharacter();
  move(pixelOf(ON_GROUND));
  click(pixelOf(ON_GROUND));
  move(pixelOf(ON_GROUND) + QPoint(50, 0));
  click(pixelOf(ON_GROUND) + QPoint(50, 0));
  const std::size_t built = scene().nodes().size();
  ASSERT_GT(built, before);

  key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(scene().nodes().size(), before);
  EXPECT_FALSE(window().menus().undoAction().isEnabled());
  key(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(scene().nodes().size(), built);
  EXPECT_TRUE(waitForPicture());
}

TEST_F(PlacingByHand, ItStandsOnAScaledAndTurnedSurfaceAndNeverOnItself) {
  auto* plate = scene().create(
      new host::SurroundingsObject(static_cast<host::SurroundingsObject*>(node(L"Table")->GetObjectRef())->mesh()));
  Matrix3 tm(TRUE);
  tm.Scale(Point3(0.5F, 0.8F, 0.4F));
  tm.RotateZ(0.7F);
  tm.Translate(Point3(-330, 60, 0));
  plate->SetNodeTM(0, tm);
  const Box3 box = plate->worldBounds();
  const Point3 onPlate(box.Center().x, box.Center().y, box.pmax.z);
  createCharacter();
  move(pixelOf(onPlate));
  expectNear(place(placed()), onPlate, 2.0F);
  move(pixelOf(ON_GROUND));
  const Point3 chest = place(placed()) + Point3(0, 0, 100);
  move(pixelOf(chest));
  EXPECT_GT(place(placed()).y, chest.y) << "behind itself";
  click(pixelOf(ON_GROUND), Qt::RightButton);
}

TEST_F(PlacingByHand, ItStaysWhileTheMouseIsInTheSkyAndASecondOneTakesTheMouseOver) {
  createCharacter();
  move(pixelOf(ON_GROUND));
  INode* first = placed();
  const Point3 stood = place(first);
  // Level with the ground: the upper half of the view looks above the horizon.
  view().viewport().lookAt(Point3(0, 150, 60), 900.0F, 0.1F, 0.0F);
  move(QPoint(view().width() / 2 + 40, 5));
  EXPECT_EQ(place(first), stood);
  view().viewport().lookAt(Point3(0, 150, 60), 900.0F, 0.1F, 0.6F);
  createCharacter();
  expectLogged(ZORVEL::DEBUG_WARNING, L"Placement::StartPlacement node alreay set!");
  move(pixelOf(Point3(-100, 0, 0)));
  EXPECT_EQ(place(first), stood);
  // In the first step this time; it takes the second character alone.
  const std::size_t nodes = scene().nodes().size();
  click(pixelOf(Point3(-100, 0, 0)), Qt::RightButton);
  EXPECT_LT(scene().nodes().size(), nodes);
  EXPECT_EQ(placed(), first);
  EXPECT_TRUE(standardMode());
  move(pixelOf(ON_GROUND) + QPoint(30, 0));
  EXPECT_EQ(place(first), stood) << "moves after the end move nothing";
}

}  // namespace
