#include "scene/Placement.h"

#include <gtest/gtest.h>
#include <max.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "host/application/Application.h"
#include "host/meshes/Mesh.h"
#include "host/modes/CommandModes.h"
#include "host/modes/MouseFeed.h"
#include "host/scene/LampHelper.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "host/view/Viewports.h"
#include "scene/PlacementPickMode.h"
#include "tests/support/LoadedRepositoryFixture.h"

namespace {

using host::Application;
using host::Node;
using ZORVEL::Placement;

constexpr int WIDTH = 800;
constexpr int HEIGHT = 600;

/// A square table top around the origin of its object space, facing up.
std::shared_ptr<const host::Mesh> tableTop(float halfWidth) {
  host::Mesh mesh;
  mesh.positions = {
      {-halfWidth, -halfWidth, 0}, {halfWidth, -halfWidth, 0}, {halfWidth, halfWidth, 0}, {-halfWidth, halfWidth, 0}};
  mesh.triangles = {{0, 1, 2}, {0, 2, 3}};
  host::completeMesh(mesh);
  return std::make_shared<const host::Mesh>(mesh);
}

class PlacementByMouse : public support::LoadedRepositoryFixture {
 protected:
  void SetUp() override {
    LoadedRepositoryFixture::SetUp();
    promptsBefore_ = prompts().depth();
    view_ = &Application::instance().viewports().open(WIDTH, HEIGHT);
    view_->lookAt(Point3(0, 0, 50), 1500.0F, 0.3F, 0.7F);
    feed_ = std::make_unique<host::MouseFeed>(Application::instance().modes(), view_->GetHWnd());
    clearLog();
  }
  void TearDown() override {
    Placement::Free();
    expectOver();
    Application::instance().viewports().close(view_->GetHWnd());
    LoadedRepositoryFixture::TearDown();
  }

  static host::Scene& scene() { return Application::instance().scene(); }
  static host::UndoStack& undo() { return Application::instance().undo(); }
  static host::CommandModes& modes() { return Application::instance().modes(); }
  static host::Prompts& prompts() { return Application::instance().prompts(); }
  static const std::wstring& prompt() { return prompts().shown(); }
  /// Nothing is placed, and nothing asks for it.
  void expectOver() const {
    EXPECT_EQ(Placement::GetNode(), nullptr);
    EXPECT_EQ(Placement::GetStep(), ZORVEL::PlacementStep::Idle);
    EXPECT_EQ(&modes().current(), &modes().standard());
    EXPECT_EQ(prompts().depth(), promptsBefore_);
  }
  static int endCommands() {
    const std::vector<int>& all = modes().executed();
    return static_cast<int>(std::count(all.begin(), all.end(), host::CommandModes::STANDARD_MODE_COMMAND));
  }

  INode* start() {
    INode* parent = build();
    Placement::StartPlacement(parent);
    return parent;
  }
  IPoint2 pixelOf(const Point3& world) const {
    const auto pixel = view_->camera().project(world, WIDTH, HEIGHT);
    return {static_cast<int>(std::lround(pixel->x())), static_cast<int>(std::lround(pixel->y()))};
  }
  void moveTo(const Point3& world) { feed_->move(0, pixelOf(world)); }
  void click(const IPoint2& pixel) {
    feed_->press(MOUSE_LBUTTON, 0, pixel);
    feed_->release(MOUSE_LBUTTON, 0, pixel);
  }
  static Node* addSurface(Object* object, const Matrix3& place) {
    Node* node = scene().create(object);
    Matrix3 tm = place;
    node->SetNodeTM(0, tm);
    return node;
  }
  static Matrix3 at(const Point3& p) {
    Matrix3 tm(TRUE);
    tm.SetTrans(p);
    return tm;
  }
  /// A pixel is worth a few centimetres at this distance.
  static void expectAt(INode* node, const Point3& p) {
    const Point3 actual = node->GetNodeTM(0).GetTrans();
    EXPECT_NEAR(actual.x, p.x, 3.0F);
    EXPECT_NEAR(actual.y, p.y, 3.0F);
    EXPECT_NEAR(actual.z, p.z, 0.05F + (p.z > 0 ? 3.0F : 0.0F));
  }

  host::Viewport* view_ = nullptr;
  std::unique_ptr<host::MouseFeed> feed_;
  std::size_t promptsBefore_ = 0;
};

TEST_F(PlacementByMouse, StandsOnTheGroundWhereNothingElseIsAndNeverOnItself) {
  INode* parent = start();
  EXPECT_EQ(prompt(), L"Place your ZORVEL Character");
  for (const Point3& p : {Point3(120, 40, 0), Point3(-200, 150, 0)}) {
    moveTo(p);
    expectAt(parent, p);
  }
  // The pixel of its own chest: what is behind it counts, the ground.
  const Point3 chest = parent->GetNodeTM(0).GetTrans() + Point3(0, 0, 120);
  moveTo(chest);
  EXPECT_NEAR(parent->GetNodeTM(0).GetTrans().z, 0.0F, 0.05F);
  EXPECT_TRUE(undo().undoNames() == std::vector<std::wstring>{L"ZORVEL Character"}) << "moving records nothing";
}

TEST_F(PlacementByMouse, StandsOnATableAlsoOnOneThatIsScaledAndTurned) {
  Node* table = addSurface(new host::SurroundingsObject(tableTop(60)), at({150, 0, 75}));
  table->Move(0, Matrix3(TRUE), Point3(20, 0, -75), FALSE, FALSE, PIV_PIVOT_ONLY, FALSE);
  Matrix3 turned(TRUE);
  turned.Scale(Point3(3, 0.5F, 2));
  turned.RotateZ(0.6F);
  turned.Translate(Point3(-200, 100, 40));
  addSurface(new host::SurroundingsObject(tableTop(60)), turned);
  INode* parent = start();
  moveTo({160, 10, 75});
  expectAt(parent, {160, 10, 75});
  moveTo({-200, 100, 40});
  expectAt(parent, {-200, 100, 40});
}

TEST_F(PlacementByMouse, LooksThroughHelpersAndShapes) {
  Node* lamp = addSurface(new host::LampHelper, at({100, 0, 0}));
  INode* parent = start();
  moveTo({100, 0, 0});
  EXPECT_NEAR(parent->GetNodeTM(0).GetTrans().z, 0.0F, 0.05F);
  ZORVEL::PlacementPickMode filter;
  EXPECT_EQ(filter.Filter(parent), FALSE);
  EXPECT_EQ(filter.Filter(parent->GetChildNode(0)), FALSE);
  EXPECT_EQ(filter.Filter(lamp), FALSE);
  EXPECT_EQ(filter.Filter(&scene().root()), TRUE) << "a node without an object passes";
  GetCOREInterface()->DeleteNode(lamp);
  EXPECT_EQ(Placement::GetNode(), parent) << "the deletion of another node is nothing to it";
}

TEST_F(PlacementByMouse, StandsOnWhatHangsOnOneOfItsParts) {
  INode* parent = start();
  Node* tray = addSurface(new host::SurroundingsObject(tableTop(60)), at({150, 0, 75}));
  parent->GetChildNode(0)->AttachChild(tray, 1);
  ZORVEL::PlacementPickMode filter;
  EXPECT_EQ(filter.Filter(tray), TRUE);
  moveTo({160, 10, 75});
  expectAt(parent, {160, 10, 75});
}

TEST_F(PlacementByMouse, StandsWhereARayBeginsOnTheGround) {
  INode* parent = start();
  Matrix3 elsewhere = at({120, 40, 0});
  view_->lookAt(Point3(0, 500, 0), 1000.0F, 0.0F, 0.0F);
  for (const int row : {HEIGHT / 4, HEIGHT * 3 / 4}) {
    parent->SetNodeTM(0, elsewhere);
    feed_->move(0, {WIDTH / 2, row});
    EXPECT_EQ(parent->GetNodeTM(0).GetTrans(), view_->camera().eye()) << row;
  }
}

TEST_F(PlacementByMouse, StaysWhereItIsWhileTheRayRunsAwayFromTheGround) {
  INode* parent = start();
  moveTo({50, 50, 0});
  const Point3 before = parent->GetNodeTM(0).GetTrans();
  view_->lookAt(Point3(0, 0, 500), 100.0F, 0.0F, -1.2F);
  feed_->move(0, {WIDTH / 2, HEIGHT / 2});
  EXPECT_EQ(parent->GetNodeTM(0).GetTrans(), before);
}

TEST_F(PlacementByMouse, TurnsByPixelsAndEndsOnTheGroupsHead) {
  SetMasterUnitInfo(UNITS_INCHES, 1.0F);
  const float f = 1.0F / 2.54F;
  INode* parent = start();
  INode* head = parent->GetParentNode();
  moveTo({100, 50, 0});
  const Point3 place = parent->GetNodeTM(0).GetTrans();
  const IPoint2 clicked = pixelOf({100, 50, 0});
  click(clicked);
  EXPECT_EQ(prompt(), L"Rotate your ZORVEL Character");
  feed_->move(0, {clicked.x + 100, clicked.y + 37});
  const Matrix3 turned = parent->GetNodeTM(0);
  EXPECT_NEAR(turned.GetRow(0).x, f * std::cos(1.0F), 1e-5F);
  EXPECT_NEAR(turned.GetRow(0).y, f * std::sin(1.0F), 1e-5F);
  EXPECT_EQ(turned.GetTrans(), place);
  const Point3 bodyBefore = parent->GetChildNode(0)->GetNodeTM(0).GetTrans();
  feed_->press(MOUSE_LBUTTON, MOUSE_CTRL, {clicked.x + 100, clicked.y});
  EXPECT_NEAR(head->GetNodeTM(0).GetRow(0).x, f * std::cos(1.0F), 1e-5F);
  EXPECT_EQ(head->GetNodeTM(0).GetTrans(), place);
  EXPECT_EQ(parent->GetChildNode(0)->GetNodeTM(0).GetTrans(), bodyBefore);
  EXPECT_NE(parent->Selected(), 0);
  EXPECT_EQ(modes().executed().back(), 91);
  expectOver();
  EXPECT_TRUE(undo().undo());
  EXPECT_TRUE(scene().nodes().empty());
  EXPECT_TRUE(undo().redo());
  EXPECT_EQ(scene().nodes().size(), 5U);
}

TEST_F(PlacementByMouse, ACharacterInNoGroupKeepsItsPlaceAndTurn) {
  Node* alone = addSurface(new host::SurroundingsObject(tableTop(60)), at({0, 0, 0}));
  Placement::StartPlacement(alone);
  moveTo({100, 50, 0});
  const IPoint2 clicked = pixelOf({100, 50, 0});
  click(clicked);
  feed_->move(0, {clicked.x + 100, clicked.y});
  const Matrix3 turned = alone->GetNodeTM(0);
  click({clicked.x + 100, clicked.y});
  expectOver();
  EXPECT_EQ(alone->GetNodeTM(0), turned);
  EXPECT_EQ(scene().root().GetNodeTM(0), Matrix3(TRUE));
}

TEST_F(PlacementByMouse, ARightClickInEitherStepDeletesCharacterAndGroupAndUndoDoesNoHarm) {
  for (const bool clicked : {false, true}) {
    start();
    moveTo({100, 50, 0});
    if (clicked) click(pixelOf({100, 50, 0}));
    const int ended = endCommands();
    feed_->rightClick(0, {10, 10});
    EXPECT_TRUE(scene().nodes().empty());
    EXPECT_EQ(endCommands(), ended + 1) << "the deletion ends it no second time";
    expectOver();
    undo().undo();
    EXPECT_TRUE(scene().nodes().empty());
    undo().redo();
    EXPECT_TRUE(scene().nodes().empty());
  }
  clearLog();
  ASSERT_NE(build(), nullptr) << "the register points at nothing that is gone";
  EXPECT_EQ(countLogged(L"use instance..."), 0);
}

TEST_F(PlacementByMouse, ASecondStartInEitherStepForgetsTheFirstNodeWhereItStandsAndAsksForAPlaceAgain) {
  for (const bool clicked : {false, true}) {
    INode* first = start();
    moveTo({100, 50, 0});
    if (clicked) click(pixelOf({100, 50, 0}));
    const Point3 left = first->GetNodeTM(0).GetTrans();
    INode* second = start();
    expectLogged(ZORVEL::DEBUG_WARNING, L"Placement::StartPlacement node alreay set!");
    EXPECT_EQ(prompt(), L"Place your ZORVEL Character");
    EXPECT_EQ(prompts().depth(), promptsBefore_ + 1) << "once";
    EXPECT_EQ(modes().depth(), 2U) << "once on top of the standard mode";
    moveTo({-150, -50, 0});
    EXPECT_EQ(first->GetNodeTM(0).GetTrans(), left);
    expectAt(second, {-150, -50, 0});
    feed_->rightClick(0, {10, 10});
    expectOver();
  }
}

TEST_F(PlacementByMouse, LateMovesAfterTheEndChangeNothing) {
  start();
  CommandMode* mode = GetCOREInterface()->GetCommandMode();
  feed_->rightClick(0, {10, 10});
  int points = 0;
  MouseCallBack* late = mode->MouseProc(&points);
  EXPECT_EQ(points, 2);
  EXPECT_EQ(late->proc(view_->GetHWnd(), MOUSE_FREEMOVE, 0, 0, {100, 100}), TRUE);
  expectLogged(ZORVEL::DEBUG_ERROR, L"No node selected for placement");
  EXPECT_EQ(late->proc(view_->GetHWnd(), MOUSE_POINT, 0, MOUSE_LBUTTON, {100, 100}), TRUE);
  EXPECT_EQ(late->proc(view_->GetHWnd(), MOUSE_PROPCLICK, 0, 0, {100, 100}), TRUE);
  EXPECT_TRUE(scene().nodes().empty());
}

TEST_F(PlacementByMouse, EndsWhenANewSceneAnOpenedFileUndoOrADeletionTakesTheNodeAway) {
  FileIOType type = IOTYPE_MAX;
  const std::function<void(INode*)> ways[] = {[](INode*) { Application::instance().newScene(); },
                                              [](INode*) {
                                                undo().undo();
                                                undo().clear();
                                              },
                                              [&](INode*) {
                                                BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type);
                                                Application::instance().reset();
                                              },
                                              [](INode* node) { GetCOREInterface()->DeleteNode(node, TRUE, FALSE); }};
  int way = 0;
  for (const auto& takeAway : ways) {
    SCOPED_TRACE(way++);
    for (const bool clicked : {false, true}) {
      INode* node = start();
      moveTo({100, 50, 0});
      if (clicked) click(pixelOf({100, 50, 0}));
      takeAway(node);
      expectOver();
      Application::instance().newScene();
    }
  }
}

/// Somebody else's mode for the view, which the user puts on top for a while.
class ViewMode : public CommandMode {
 public:
  int Class() override { return 1; }
  int ID() override { return 1; }
  MouseCallBack* MouseProc(int* /*numPoints*/) override { return nullptr; }
  ChangeForegroundCallback* ChangeFGProc() override { return nullptr; }
  BOOL ChangeFG(CommandMode* /*oldMode*/) override { return FALSE; }
  void EnterMode() override { GetCOREInterface()->PushPrompt(L"Pan"); }
  void ExitMode() override { GetCOREInterface()->PopPrompt(); }
};

TEST_F(PlacementByMouse, GoesOnAfterAnotherModeOnTopAndEndsBelowIt) {
  ViewMode pan;
  start();
  moveTo({100, 50, 0});
  click(pixelOf({100, 50, 0}));
  modes().push(&pan);
  EXPECT_EQ(prompts().depth(), promptsBefore_ + 1) << "the other mode's";
  modes().pop();
  EXPECT_EQ(prompt(), L"Rotate your ZORVEL Character");
  modes().push(&pan);
  undo().undo();
  EXPECT_EQ(&modes().current(), &pan) << "which is none of its business";
  modes().pop();
  expectOver();
}

TEST_F(PlacementByMouse, TheModeIsHandedBackAlsoWhileItIsCurrent) {
  Placement::Free();
  start();
  CommandMode* mode = GetCOREInterface()->GetCommandMode();
  EXPECT_EQ(mode->ID(), 0x782F67);
  ViewMode pan;
  EXPECT_EQ(mode->ChangeFG(&pan), TRUE);
  EXPECT_EQ(mode->ChangeFG(mode), FALSE) << "the same in the foreground as before";
  Placement::Free();
  expectOver();
  EXPECT_FALSE(scene().nodes().empty()) << "the character stays";
  start();
  EXPECT_EQ(prompt(), L"Place your ZORVEL Character") << "and a new one can be made";
}

}  // namespace
