#include <gmock/gmock.h>

#include <gtest/gtest.h>
#include <max.h>

#include <QRectF>
#include <cmath>

#include "host/application/Application.h"
#include "host/meshes/PlaceholderMesh.h"
#include "host/modes/CommandModes.h"
#include "host/modes/MouseFeed.h"
#include "host/scene/LampHelper.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"
#include "host/view/SceneView.h"
#include "host/view/Viewports.h"

namespace {

using host::Application;
using host::Node;
using testing::ElementsAre;

class Picking : public testing::Test {
 protected:
  Picking() : view_(Application::instance().viewports().open(400, 300)) {
    Application::instance().reset();
    view_.lookAt({0, 0, 85}, 1000, 0, 0);
    sceneView().takeChanges();
  }
  ~Picking() override {
    Application::instance().viewports().close(view_.GetHWnd());
    Application::instance().reset();
  }

  static host::SceneView& sceneView() { return Application::instance().sceneView(); }
  static Node* add(Object* object, const wchar_t* name, const Point3& place) {
    Node* node = Application::instance().scene().create(object);
    node->SetName(name);
    move(node, place);
    return node;
  }
  /// A box of 50 by 50 by 170 on its place.
  static Node* addBox(const wchar_t* name, const Point3& place) {
    return add(new host::SurroundingsObject(host::placeholderMesh()), name, place);
  }
  static void move(Node* node, const Point3& place) {
    Matrix3 tm(TRUE);
    tm.SetTrans(place);
    node->SetNodeTM(0, tm);
  }
  INode* pick(PickNodeCallback* filter = nullptr) {
    return GetCOREInterface()->PickNode(view_.GetHWnd(), IPoint2(200, 150), filter);
  }

  host::Viewport& view_;
};

/// Accepts what can be stood on, but for one node; counts how often it is asked.
class Filtering : public PickNodeCallback {
 public:
  explicit Filtering(INode* refused = nullptr) : refused_(refused) {}
  BOOL Filter(INode* node) override {
    ++asked;
    Object* object = node->EvalWorldState(0).obj;
    return node != refused_ && object->SuperClassID() == GEOMOBJECT_CLASS_ID ? TRUE : FALSE;
  }
  int asked = 0;

 private:
  INode* refused_;
};

TEST_F(Picking, FindsTheNearestNodeThatTheFilterAccepts) {
  Node* far = addBox(L"far", {0, 200, 0});
  Node* near = addBox(L"near", {0, 0, 0});
  Node* lamp = add(new host::LampHelper, L"lamp", {0, -200, 85});
  addBox(L"aside", {300, -300, 0});
  Node* group = Application::instance().scene().group({near}, L"group");
  EXPECT_EQ(pick(), lamp);
  Filtering solid;
  EXPECT_EQ(pick(&solid), near);
  Filtering notNear(near);
  EXPECT_EQ(pick(&notNear), far);
  EXPECT_EQ(notNear.asked, 3);
  Filtering nothing(far);
  move(near, {0, 0, 5000});
  EXPECT_EQ(pick(&nothing), nullptr);

  // A member moves with the head of its group.
  move(group, group->GetNodeTM(0).GetTrans() - Point3(0, 0, 5000));
  EXPECT_EQ(pick(&solid), near);
  EXPECT_EQ(GetCOREInterface()->PickNode(nullptr, IPoint2(200, 150)), nullptr);
}

TEST_F(Picking, FollowsMovesWithoutMakingEverythingAnew) {
  Node* box = addBox(L"box", {0, 0, 0});
  Node* other = addBox(L"other", {500, 0, 0});
  EXPECT_TRUE(sceneView().takeChanges().everything);
  EXPECT_FALSE(sceneView().takeChanges().any());
  const std::size_t rebuilds = sceneView().rebuildCount();
  const std::size_t moves = sceneView().moveCount();
  theHold.Begin();
  for (int i = 0; i < 3; ++i) move(box, {0, 0, -1000.0F * static_cast<float>(i)});
  theHold.Accept(L"Move");
  EXPECT_EQ(pick(), nullptr);
  EXPECT_EQ(sceneView().moveCount(), moves + 1);
  const host::SceneView::Changes changes = sceneView().takeChanges();
  EXPECT_FALSE(changes.everything);
  EXPECT_EQ(changes.bounds.pmin, Point3(-25, -25, -2000));
  EXPECT_EQ(changes.bounds.pmax, Point3(25, 25, 170));

  // Undo and redo are changes like others, selecting and naming data are none that can be seen.
  Application::instance().undo().undo();
  EXPECT_EQ(pick(), box);
  Application::instance().undo().redo();
  EXPECT_EQ(pick(), nullptr);
  sceneView().takeChanges();
  GetCOREInterface()->SelectNode(other);
  other->SetUserPropString(L"key", L"value");
  EXPECT_FALSE(sceneView().takeChanges().any());
  EXPECT_EQ(sceneView().rebuildCount(), rebuilds);

  // More moves than are remembered lose nothing.
  for (int i = 0; i < 10000; ++i) move(i % 2 == 0 ? box : other, {0, 0, i == 9998 ? 0.0F : 1000.0F});
  EXPECT_EQ(pick(), box);
  GetCOREInterface()->DeleteNode(box);
  EXPECT_EQ(pick(), nullptr);
}

TEST_F(Picking, NamesWhatIsOutOfReachOnceAndShowsTheRest) {
  host::Listener& listener = Application::instance().listener();
  listener.clear();
  Node* near = addBox(L"near", {});
  for (int i = 0; i < 12; ++i) addBox(L"far", {1e19F, 0, 0})->SetName((L"far " + std::to_wstring(i)).c_str());
  EXPECT_EQ(pick(), near);
  near->SetName(L"renamed");
  EXPECT_EQ(pick(), near);
  ASSERT_EQ(listener.lines().size(), 1U);
  EXPECT_THAT(listener.lines()[0], testing::StartsWith("Not shown, because too far away"));
  EXPECT_THAT(listener.lines()[0], testing::HasSubstr(": \"far 0\", \"far 1\", "));
  EXPECT_THAT(listener.lines()[0], testing::EndsWith("\"far 9\" and 2 more."));
  EXPECT_LT(sceneView().rays().bounds().Width().Length(), 300.0F);
}

TEST_F(Picking, SelectsByClicksInTheStandardMode) {
  Node* box = addBox(L"box", {0, 0, 0});
  Node* right = addBox(L"right", {150, 0, 0});
  host::MouseFeed feed(Application::instance().modes(), view_.GetHWnd());
  const auto click = [&](int keys, IPoint2 at) {
    feed.press(MOUSE_LBUTTON, keys, at);
    feed.release(MOUSE_LBUTTON, keys, at);
  };
  click(0, {200, 150});
  EXPECT_NE(box->Selected(), 0);
  const IPoint2 onRight(200 + static_cast<int>(150 * 150 / (1000 * std::tan(host::Viewport::VERTICAL_ANGLE / 2))), 150);
  click(MOUSE_CTRL, onRight);
  EXPECT_EQ(GetCOREInterface()->GetSelNodeCount(), 2);
  click(MOUSE_CTRL, {5, 5});
  EXPECT_EQ(GetCOREInterface()->GetSelNodeCount(), 2);
  click(0, onRight);
  EXPECT_EQ(box->Selected(), 0);
  EXPECT_NE(right->Selected(), 0);
  click(0, {5, 5});
  EXPECT_EQ(GetCOREInterface()->GetSelNodeCount(), 0);
  feed.move(0, {200, 150});
  feed.rightClick(0, {200, 150});
  EXPECT_EQ(GetCOREInterface()->GetSelNodeCount(), 0);
  Application::instance().undo().undo();
  EXPECT_NE(right->Selected(), 0);
}

TEST_F(Picking, MeasuresSurroundingsAlongTheRayAsGivenInObjectSpace) {
  host::SurroundingsObject box(host::placeholderMesh());
  Ray ray;
  ray.p = Point3(0, 0, 270);
  ray.dir = Point3(0, 0, -10);
  float at = 0.0F;
  Point3 normal;
  ASSERT_EQ(box.IntersectRay(0, ray, at, normal), 1);
  EXPECT_NEAR(at, 10.0F, 1e-4F);
  EXPECT_GT(normal.z, 0.0F);
  ray.dir = Point3(0, 0, 1);
  EXPECT_EQ(box.IntersectRay(0, ray, at, normal), 0);
}

TEST(Viewports, NeverGiveAHandleTwiceAndAnswerForWindowsThatAreNone) {
  host::Viewports viewports;
  const HWND first = viewports.open(10, 10).GetHWnd();
  viewports.close(first);
  host::Viewport& second = viewports.open(0, -5);
  EXPECT_NE(second.GetHWnd(), first);
  EXPECT_EQ(second.width() * second.height(), 1);
  EXPECT_TRUE(viewports.view(second.GetHWnd()).IsAlive());
  ViewExp& none = viewports.view(first);
  EXPECT_FALSE(none.IsAlive());
  Ray ray;
  none.MapScreenToWorldRay(1, 1, ray);
  EXPECT_EQ(ray.dir, Point3());
}

TEST(Viewport, SendsRaysOfUnitLengthFromTheEyeThroughThePixel) {
  host::Viewport view(nullptr);
  view.resize(400, 200);
  view.lookAt({10, 20, 30}, 100, 0, 0);
  Ray ray;
  view.MapScreenToWorldRay(200, 100, ray);
  EXPECT_LT((ray.p - Point3(10, -80, 30)).Length(), 1e-3F);
  EXPECT_LT((ray.dir - Point3(0, 1, 0)).Length(), 1e-5F);
  view.MapScreenToWorldRay(399, 3, ray);
  EXPECT_NEAR(ray.dir.Length(), 1.0F, 1e-5F);
  EXPECT_GT(ray.dir.x, 0.0F);
  EXPECT_GT(ray.dir.z, 0.0F);
}

TEST(Viewport, CirclesPansAndZoomsWithTheMouseAndFramesWhole) {
  host::Viewport view(nullptr);
  view.resize(400, 200);
  view.lookAt({0, 0, 0}, 100, 0, 0);
  const auto before = view.camera().project({0, 0, 0}, 400, 200);
  view.pan(30, -20);
  const auto after = view.camera().project({0, 0, 0}, 400, 200);
  EXPECT_NEAR(after->x() - before->x(), 30, 0.01);
  EXPECT_NEAR(after->y() - before->y(), -20, 0.01);
  view.orbit(0, 1e9F);
  EXPECT_LT(view.camera().forward().z, -0.99F);
  view.orbit(0, -1e9F);
  EXPECT_GT(view.camera().forward().z, 0.99F);
  const float distance = view.distance();
  view.zoom(2);
  EXPECT_LT(view.distance(), distance);
  view.zoom(1e6F);
  EXPECT_GT(view.distance(), 0.0F);
  view.lookAt({0, 0, 0}, std::nanf(""), 0, 0);
  view.orbit(std::nanf(""), 0);
  EXPECT_TRUE(std::isfinite(view.distance() + view.yaw()));

  Box3 box;
  box += Point3(-500, 20, 0);
  box += Point3(100, 90, 400);
  view.lookAt({0, 0, 0}, 100, 2, 0.5F);
  view.frame(Box3());
  EXPECT_EQ(view.distance(), 100);
  view.frame(box);
  for (int i = 0; i < 8; ++i) {
    const Point3 corner((i & 1) != 0 ? box.pmin.x : box.pmax.x, (i & 2) != 0 ? box.pmin.y : box.pmax.y,
                        (i & 4) != 0 ? box.pmin.z : box.pmax.z);
    const auto seen = view.camera().project(corner, 400, 200);
    ASSERT_TRUE(seen);
    EXPECT_TRUE(QRectF(0, 0, 400, 200).contains(*seen));
  }
}

}  // namespace
