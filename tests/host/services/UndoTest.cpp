#include <gtest/gtest.h>
#include <max.h>

#include "host/application/Application.h"
#include "host/materials/MaterialClasses.h"
#include "host/scene/CircleShape.h"
#include "host/scene/Scene.h"
#include "host/services/UndoStack.h"

namespace {

using host::Application;
using host::Node;
using host::Ref;
using host::Scene;

class Undo : public testing::Test {
 protected:
  void SetUp() override { Application::instance().reset(); }
  void TearDown() override { Application::instance().reset(); }

  static Scene& scene() { return Application::instance().scene(); }
  static host::UndoStack& undo() { return Application::instance().undo(); }
  static Node* addNode(const wchar_t* name) {
    Node* node = scene().create(new host::CircleShape);
    node->SetName(name);
    return node;
  }
};

/// What a person could tell apart of the scene, as one text.
std::wstring fingerprint(const Scene& scene) {
  std::wstring text;
  for (Node* node : scene.nodes()) {
    text += std::wstring(node->GetParentNode()->GetName()) + L"/" + node->GetName() + L" " + node->layer()->getName();
    text += node->IsGroupMember() != FALSE ? L" member" : L"";
    text += node->IsGroupHead() != FALSE ? L" head" : L"";
    text += node->Selected() != 0 ? L" selected" : L"";
    text += node->GetMtl() != nullptr ? node->GetMtl()->GetName().data() : L" bare";
    for (const auto& property : node->properties())
      text += std::wstring(property.first) + L"=" + property.second.data();
    for (int row = 0; row < 4; ++row) {
      const Point3 p = node->GetObjectTM(0).GetRow(row);
      text += L" " + std::to_wstring(p.x) + L"," + std::to_wstring(p.y) + L"," + std::to_wstring(p.z);
    }
    text += L"\n";
  }
  return text;
}

/// Every kind of change that a plug-in can make, on a scene that has a table and a lamp on it.
void changeEverything(Scene& scene, Node* table, Node* lamp) {
  Node* cup = scene.create(new host::CircleShape);
  cup->SetName(L"cup");
  table->AttachChild(cup);
  Matrix3 tm(TRUE);
  tm.RotateZ(1.0F);
  tm.Translate(Point3(1, 2, 3));
  table->SetNodeTM(0, tm);
  lamp->SetUserPropString(L"bulb", L"warm");
  table->SetUserPropBool(L"stable", TRUE);
  const Ref<Mtl> material(host::createMaterial(host::STANDARD_MATERIAL));
  material->SetName(L"oak");
  table->SetMtl(material.get());
  MSTR layerName(L"furniture");
  ILayer* layer = scene.layers().CreateLayer(layerName);
  layer->AddToLayer(table);
  MSTR groupName(L"set");
  Node* head = scene.group({table, cup}, groupName);
  head->Move(0, Matrix3(TRUE), Point3(5, 0, 0), FALSE, FALSE, PIV_PIVOT_ONLY, FALSE);
  scene.select(*cup, true);
  scene.remove(*lamp);
}

TEST_F(Undo, TakesBackAndMakesAgainEveryKindOfChangeExactly) {
  Node* table = addNode(L"table");
  Node* lamp = addNode(L"lamp");
  table->AttachChild(lamp);
  scene().select(*lamp, true);
  const std::wstring before = fingerprint(scene());
  theHold.Begin();
  changeEverything(scene(), table, lamp);
  theHold.Accept(L"everything");
  const std::wstring after = fingerprint(scene());
  ASSERT_NE(before, after);
  for (int round = 0; round < 3; ++round) {
    EXPECT_TRUE(undo().undo());
    EXPECT_EQ(fingerprint(scene()), before);
    EXPECT_EQ(scene().layers().layers().size(), 1U);
    EXPECT_TRUE(undo().redo());
    EXPECT_EQ(fingerprint(scene()), after);
    EXPECT_EQ(scene().layers().layers().size(), 2U);
  }
  EXPECT_EQ(undo().undoNames(), std::vector<std::wstring>{L"everything"});
}

TEST_F(Undo, CancelLeavesNothingOfTheWholeNest) {
  Node* table = addNode(L"table");
  Node* lamp = addNode(L"lamp");
  const std::wstring before = fingerprint(scene());
  theHold.Begin();
  changeEverything(scene(), table, lamp);
  theHold.Begin();
  table->SetName(L"desk");
  theHold.Cancel();
  theHold.Accept(L"outer");
  EXPECT_EQ(fingerprint(scene()), before);
  EXPECT_TRUE(undo().undoNames().empty());
  EXPECT_EQ(theHold.GetBeginDepth(), 0);
}

TEST_F(Undo, OnlyTheOutermostAcceptMakesAnEntryAndAnEmptyOneMakesNone) {
  Node* table = addNode(L"table");
  theHold.Begin();
  theHold.Begin();
  table->SetName(L"desk");
  theHold.Accept(L"inner");
  EXPECT_TRUE(undo().undoNames().empty());
  theHold.Accept(L"outer");
  theHold.Begin();
  table->SetName(L"desk");
  theHold.Accept(L"nothing changed");
  EXPECT_EQ(undo().undoNames(), std::vector<std::wstring>{L"outer"});
  theHold.Accept(L"without a begin");
  EXPECT_EQ(undo().undoNames().size(), 1U);
}

TEST_F(Undo, ANewEntryForgetsWhatCouldBeRedone) {
  Node* table = addNode(L"table");
  theHold.Begin();
  table->SetName(L"desk");
  theHold.Accept(L"first");
  undo().undo();
  theHold.Begin();
  table->SetName(L"bench");
  theHold.Accept(L"second");
  EXPECT_FALSE(undo().redo());
  EXPECT_STREQ(table->GetName(), L"bench");
}

TEST_F(Undo, OfAStepWhoseNodesWereDeletedWithoutARecordDoesNoHarm) {
  Node* table = addNode(L"table");
  Node* lamp = addNode(L"lamp");
  theHold.Begin();
  changeEverything(scene(), table, lamp);
  theHold.Accept(L"everything");
  while (!scene().nodes().empty()) scene().remove(*scene().nodes().back());
  EXPECT_TRUE(undo().undo());
  EXPECT_EQ(scene().nodes().size(), 1U) << "only the lamp, whose deletion was recorded, comes back";
  EXPECT_TRUE(undo().redo());
  EXPECT_TRUE(scene().nodes().empty());
}

std::vector<std::pair<int, std::wstring>> announced;

void announce(void* /*param*/, NotifyInfo* info) {
  auto* node = static_cast<INode*>(info->callParam);
  announced.emplace_back(info->intcode, node != nullptr ? node->GetName() : L"");
}

TEST_F(Undo, AnnouncesNodesThatLeaveAndEnterByUndoRedoAndCancel) {
  for (const int code : {NOTIFY_SCENE_ADDED_NODE, NOTIFY_SCENE_PRE_DELETED_NODE, NOTIFY_SCENE_POST_DELETED_NODE}) {
    RegisterNotification(announce, nullptr, code);
  }
  using Announced = std::vector<std::pair<int, std::wstring>>;
  const Announced left = {{NOTIFY_SCENE_PRE_DELETED_NODE, L"Shape001"}, {NOTIFY_SCENE_POST_DELETED_NODE, L""}};
  const Announced entered = {{NOTIFY_SCENE_ADDED_NODE, L"Shape001"}};
  theHold.Begin();
  scene().create(new host::CircleShape);
  theHold.Accept(L"create");
  announced.clear();
  undo().undo();
  EXPECT_EQ(announced, left);
  announced.clear();
  undo().redo();
  EXPECT_EQ(announced, entered);
  theHold.Begin();
  scene().remove(*scene().nodes().front());
  announced.clear();
  theHold.Cancel();
  EXPECT_EQ(announced, entered);
  for (const int code : {NOTIFY_SCENE_ADDED_NODE, NOTIFY_SCENE_PRE_DELETED_NODE, NOTIFY_SCENE_POST_DELETED_NODE}) {
    UnRegisterNotification(announce, nullptr, code);
  }
}

/// Tells when it ends.
class CountedObject : public host::CircleShape {
 public:
  ~CountedObject() override { ++ended_; }
  static int ended_;
};
int CountedObject::ended_ = 0;

TEST_F(Undo, KeepsAnObjectAliveAfterItsLastNodeOnlyWhileAStepNeedsIt) {
  CountedObject::ended_ = 0;
  auto* object = new CountedObject;
  Node* first = scene().create(object);
  Node* second = scene().create(object);
  scene().remove(*first);
  EXPECT_EQ(CountedObject::ended_, 0);
  theHold.Begin();
  scene().remove(*second);
  theHold.Accept(L"delete");
  EXPECT_EQ(CountedObject::ended_, 0);
  undo().clear();
  EXPECT_EQ(CountedObject::ended_, 1);
}

}  // namespace
