#include <gtest/gtest.h>
#include <max.h>

#include "host/application/Application.h"
#include "host/scene/CircleShape.h"
#include "host/scene/Scene.h"

namespace {

using host::Application;
using host::Node;
using host::Scene;

constexpr float QUARTER_TURN = 1.57079633F;

void expectNear(const Point3& actual, const Point3& expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-4F);
  EXPECT_NEAR(actual.y, expected.y, 1e-4F);
  EXPECT_NEAR(actual.z, expected.z, 1e-4F);
}

void expectNear(const Matrix3& actual, const Matrix3& expected) {
  for (int row = 0; row < 4; ++row) expectNear(actual.GetRow(row), expected.GetRow(row));
}

TEST(Matrix, RotatesCounterClockwiseAndAppendsInWorldAxes) {
  Matrix3 tm(TRUE);
  tm.RotateX(QUARTER_TURN);
  expectNear(Point3(0, 1, 0) * tm, Point3(0, 0, 1));
  tm.RotateZ(QUARTER_TURN);
  tm.Translate(Point3(10, 0, 0));
  expectNear(Point3(1, 0, 0) * tm, Point3(10, 1, 0));
  tm.Scale(Point3(2, 2, 2));
  expectNear(Point3(1, 0, 0) * tm, Point3(10, 2, 0));
  tm.Scale(Point3(2, 2, 2), TRUE);
  expectNear(Point3(1, 0, 0) * tm, Point3(20, 4, 0));
}

TEST(Matrix, InverseUndoesScaleRotationAndTranslationAtAnySize) {
  for (const float size : {1e-5F, 1.0F, 1e4F}) {
    Matrix3 tm(TRUE);
    tm.Scale(Point3(size, 2 * size, -size));
    tm.RotateY(0.7F);
    tm.Translate(Point3(3, -4, 5) * size);
    expectNear(Point3(7, 8, 9) * tm * Inverse(tm), Point3(7, 8, 9));
  }
  EXPECT_NE(Inverse(Matrix3(FALSE)).IsIdentity(), 0);
}

class NodeTree : public testing::Test {
 protected:
  void SetUp() override { Application::instance().reset(); }
  void TearDown() override { Application::instance().reset(); }

  static Scene& scene() { return Application::instance().scene(); }
  static Node* add(const Point3& at) {
    auto* circle = new host::CircleShape;
    circle->SetValue(0, 0, 1.0F);
    Node* node = scene().create(circle);
    Matrix3 tm(TRUE);
    tm.SetTrans(at);
    node->SetNodeTM(0, tm);
    return node;
  }
};

TEST_F(NodeTree, AttachingKeepsTheWorldOrTheLocalTransform) {
  Node* parent = add({10, 0, 0});
  Node* kept = add({1, 2, 3});
  Node* carried = add({1, 2, 3});
  parent->AttachChild(kept, 1);
  parent->AttachChild(carried, 0);
  expectNear(kept->GetNodeTM(0).GetTrans(), {1, 2, 3});
  expectNear(carried->GetNodeTM(0).GetTrans(), {11, 2, 3});
  Matrix3 doubled(TRUE);
  doubled.Scale(Point3(2, 2, 2));
  parent->SetNodeTM(0, doubled);
  expectNear(kept->GetNodeTM(0).GetTrans(), {-18, 4, 6});
  kept->AttachChild(parent, 1);
  EXPECT_EQ(parent->GetParentNode(), &scene().root()) << "a node cannot hang below its own child";
}

TEST_F(NodeTree, DeletingMovesChildrenUpAndForgetsSelectionAndLayer) {
  Node* parent = add({10, 0, 0});
  Node* child = add({1, 2, 3});
  parent->AttachChild(child);
  scene().select(*parent, true);
  EXPECT_EQ(GetCOREInterface()->DeleteNode(parent), 1U);
  EXPECT_EQ(child->GetParentNode(), &scene().root());
  expectNear(child->GetNodeTM(0).GetTrans(), {1, 2, 3});
  EXPECT_TRUE(scene().selection().empty());
  EXPECT_EQ(scene().nodes(), std::vector<Node*>{child});
}

TEST_F(NodeTree, APivotOnlyMoveLeavesGeometryAndChildrenInPlace) {
  Node* node = add({10, 20, 30});
  Node* child = add({1, 1, 1});
  node->AttachChild(child);
  const Matrix3 object = node->GetObjectTM(0);
  node->Move(0, Matrix3(TRUE), Point3(-10, -20, -30), FALSE, FALSE, PIV_PIVOT_ONLY, FALSE);
  expectNear(node->GetNodeTM(0), Matrix3(TRUE));
  expectNear(node->GetObjectTM(0), object);
  expectNear(child->GetNodeTM(0).GetTrans(), {1, 1, 1});
  node->Move(0, Matrix3(TRUE), Point3(0, 0, 5), FALSE, TRUE, PIV_OBJECT_ONLY, FALSE);
  expectNear(node->GetNodeTM(0), Matrix3(TRUE));
  expectNear(node->GetObjectTM(0).GetTrans(), {10, 20, 35});
  node->Move(0, Matrix3(TRUE), Point3(1, 0, 0), FALSE, TRUE, PIV_NONE, FALSE);
  expectNear(node->GetObjectTM(0).GetTrans(), {11, 20, 35});
  expectNear(child->GetNodeTM(0).GetTrans(), {2, 1, 1});
}

TEST_F(NodeTree, AGroupKeepsItsMembersWhereTheyAreAndGoesWithTheLastOne) {
  Node* parent = add({0, 0, 0});
  Node* child = add({10, 0, 0});
  parent->AttachChild(child);
  INodeTab members;
  INode* nodes[] = {parent, child};
  members.Append(2, nodes);
  MSTR name(L"pair");
  INode* head = GetCOREInterface()->GroupNodes(&members, &name, FALSE);
  ASSERT_NE(head, nullptr);
  EXPECT_EQ(parent->GetParentNode(), head);
  EXPECT_EQ(child->GetParentNode(), parent);
  EXPECT_NE(child->IsGroupMember(), FALSE);
  EXPECT_NE(head->IsGroupHead(), FALSE);
  expectNear(head->GetNodeTM(0).GetTrans(), {5, 0, 0});
  expectNear(child->GetNodeTM(0).GetTrans(), {10, 0, 0});
  GetCOREInterface()->DeleteNode(child);
  GetCOREInterface()->DeleteNode(parent);
  EXPECT_TRUE(scene().nodes().empty());
}

void unregisterItself(void* param, NotifyInfo* info) {
  ++*static_cast<int*>(param);
  UnRegisterNotification(unregisterItself, param, info->intcode);
}

TEST(Notifications, MayBeTakenBackDuringABroadcast) {
  int first = 0;
  int second = 0;
  RegisterNotification(unregisterItself, &first, NOTIFY_FILE_POST_OPEN);
  RegisterNotification(unregisterItself, &second, NOTIFY_FILE_POST_OPEN);
  BroadcastNotification(NOTIFY_FILE_POST_OPEN);
  BroadcastNotification(NOTIFY_FILE_POST_OPEN);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
}

TEST(MasterUnits, FollowTheSystemUnitAndItsScale) {
  ASSERT_NE(SetMasterUnitInfo(UNITS_INCHES, 1.0F), 0);
  EXPECT_DOUBLE_EQ(GetMasterScale(UNITS_INCHES), 1.0);
  EXPECT_DOUBLE_EQ(GetMasterScale(UNITS_CENTIMETERS), 2.54);
  ASSERT_NE(SetMasterUnitInfo(UNITS_METERS, 2.0F), 0);
  EXPECT_DOUBLE_EQ(GetMasterScale(UNITS_CENTIMETERS), 200.0);
  EXPECT_EQ(GetMasterScale(7), -1.0);
  EXPECT_EQ(SetMasterUnitInfo(UNITS_METERS, 0.0F), 0);
  EXPECT_EQ(SetMasterUnitInfo(-1, 1.0F), 0);
  Application::instance().reset();
}

}  // namespace
