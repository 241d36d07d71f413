#include "scene/CharacterBuilder.h"

#include <gtest/gtest.h>
#include <max.h>

#include "host/application/Application.h"
#include "host/application/ClassRegistry.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"
#include "host/services/Prompts.h"
#include "host/services/UndoStack.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Fields.h"
#include "model/Selection2.h"
#include "tests/support/LoadedRepositoryFixture.h"

namespace {

using host::Application;
using host::Node;
using host::ProxyObject;
using ZORVEL::Selection2;

class CharacterBuild : public support::LoadedRepositoryFixture {
 protected:
  static host::Scene& scene() { return Application::instance().scene(); }
  static host::UndoStack& undo() { return Application::instance().undo(); }
  static std::vector<Node*> proxies() {
    std::vector<Node*> result;
    for (Node* node : scene().nodes()) {
      if (dynamic_cast<ProxyObject*>(node->GetObjectRef()) != nullptr) result.push_back(node);
    }
    return result;
  }
  /// Below the repository's root, doubled separators as they are.
  std::wstring fileOf(Node* node) const {
    return dynamic_cast<ProxyObject*>(node->GetObjectRef())->fileName().substr(repository().root().size());
  }
  static std::wstring property(INode* node, const wchar_t* key) {
    MSTR value;
    return node->GetUserPropString(key, value) != FALSE ? value.data() : L"(none)";
  }
  static std::wstring materialOf(INode* node) {
    return node->GetMtl() != nullptr ? node->GetMtl()->GetName().data() : L"(none)";
  }
};

void expectNear(const Matrix3& actual, const Matrix3& expected) {
  for (int row = 0; row < 4; ++row) {
    EXPECT_NEAR(actual.GetRow(row).x, expected.GetRow(row).x, 1e-4F) << "row " << row;
    EXPECT_NEAR(actual.GetRow(row).y, expected.GetRow(row).y, 1e-4F) << "row " << row;
    EXPECT_NEAR(actual.GetRow(row).z, expected.GetRow(row).z, 1e-4F) << "row " << row;
  }
}

TEST_F(CharacterBuild, MakesEveryPieceWithItsFileMaterialPropertiesLayerAndGroup) {
  addAsset(L"a1", L"a1m1");
  addAsset(L"a4");
  addAsset(L"g1", L"g1m1");
  INode* parent = build();
  ASSERT_NE(parent, nullptr);
  EXPECT_STREQ(parent->GetName(), L"ZORVEL Character Anna");
  EXPECT_EQ(property(parent, L"ZORVEL_PARENT"), L"TRUE");
  INode* head = parent->GetParentNode();
  EXPECT_STREQ(head->GetName(), L"ZORVEL Character Anna");
  EXPECT_EQ(property(head, L"ZORVEL_GROUP"), L"TRUE");
  EXPECT_NE(head->IsGroupHead(), FALSE);
  const ZORVEL::CharacterData* anna = ZORVEL::Data2::GetCharacter(L"c1");
  EXPECT_EQ(ZORVEL::Fields::TextOrEmpty(anna, L"generalTextureFolder"), repository().root() + L"\\anna\\maps\\");
  EXPECT_EQ(ZORVEL::Fields::TextOrEmpty(anna, L"globalMaps"), repository().root() + L"maps\\");
  EXPECT_EQ(head->GetParentNode(), GetCOREInterface()->GetRootNode());

  const std::vector<std::vector<std::wstring>> expected = {
      {L"Standing", L"\\anna\\standing\\pose.vrmesh", L"Skin light"},
      {L"Seat", L"\\anna\\seat\\asset.vrmesh", L"Oak"},
      {L"Summer", L"\\anna\\summer\\k1_p1.vrmesh", L"Blue"},
      {L"Bag", L"\\anna\\bag\\asset.vrmesh", L"Canvas"},
      {L"Scarf", L"\\anna\\scarf\\p1.vrmesh", L"Blue"},
      {L"Bench", L"\\global_assets\\bench\\asset.vrmesh", L"Oak"}};
  std::vector<std::vector<std::wstring>> made;
  for (Node* node : proxies()) made.push_back({node->GetName(), fileOf(node), materialOf(node)});
  EXPECT_EQ(made, expected);

  const std::vector<Node*> nodes = proxies();
  EXPECT_EQ(property(nodes[0], L"ZORVEL_CHAR") + property(nodes[0], L"ZORVEL_POSE"), L"c1p1");
  EXPECT_EQ(property(nodes[1], L"ZORVEL_ASSET"), L"a2");
  EXPECT_EQ(property(nodes[2], L"ZORVEL_CLOTH") + property(nodes[2], L"ZORVEL_POSE"), L"k1p1");
  EXPECT_EQ(property(nodes[5], L"ZORVEL_ASSET"), L"g1");
  for (Node* node : scene().nodes()) {
    EXPECT_STREQ(node->layer()->getName(), L"ZORVEL Characters");
    EXPECT_EQ(node->IsGroupMember() != FALSE, node != head);
  }
  EXPECT_EQ(undo().undoNames(), std::vector<std::wstring>{L"ZORVEL Character"});
  EXPECT_EQ(Application::instance().prompts().shown(), L"ZORVEL Character created");
  EXPECT_EQ(Application::instance().prompts().top(), L"") << "nobody's prompt is overwritten";
}

TEST_F(CharacterBuild, PlacesParentGroupAndAssetsAsComputedByHand) {
  SetMasterUnitInfo(UNITS_INCHES, 2.0F);
  addAsset(L"a1");
  INode* parent = build();
  // Two inches are a unit, and the number of inches is taken twice; that is agreed.
  const float f = 2.0F * 2.0F / 5.08F;
  expectNear(parent->GetNodeTM(0), Matrix3({f, 0, 0}, {0, f, 0}, {0, 0, f}, {0, 0, 0}));
  expectNear(parent->GetParentNode()->GetNodeTM(0), Matrix3(TRUE));
  // A quarter turn about X takes y to z and z to -y, then one about Y z to x and x to -z, then one about Z as below.
  expectNear(proxies()[3]->GetNodeTM(0), Matrix3({0, 0, -f}, {0, f, 0}, {f, 0, 0}, {10 * f, 0, 0}));
  // A quarter turn about Z takes x to y and y to -x.
  expectNear(proxies()[1]->GetNodeTM(0), Matrix3({0, f, 0}, {-f, 0, 0}, {0, 0, f}, {0, -20 * f, 5 * f}));
  expectNear(proxies()[0]->GetNodeTM(0), parent->GetNodeTM(0));
  float radius = 0.0F;
  Interval valid = FOREVER;
  parent->GetObjectRef()->GetParamBlock()->GetValue(0, 0, radius, valid);
  EXPECT_EQ(radius, 50.0F);
}

TEST_F(CharacterBuild, HasTheSameSizeInTheWorldInEverySystemUnit) {
  for (const int unit : {UNITS_CENTIMETERS, UNITS_INCHES, UNITS_METERS, UNITS_MILES}) {
    Application::instance().reset();
    SetMasterUnitInfo(unit, 1.0F);
    ASSERT_NE(build(), nullptr);
    const Point3 size =
        proxies().front()->worldBounds().Width() * static_cast<float>(GetMasterScale(UNITS_CENTIMETERS));
    EXPECT_NEAR(size.x, 40.0F, 1e-3F);
    EXPECT_NEAR(size.z, 170.0F, 1e-3F);
  }
}

TEST_F(CharacterBuild, WithoutACompleteSelectionLeavesNoNodeNoLayerMemberAndNoRecord) {
  struct Case {
    void (*set)(const wchar_t*);
    const wchar_t* good;
  };
  const Case cases[] = {{Selection2::SetCharacter, L"c1"},
                        {Selection2::SetCloth, L"k1"},
                        {Selection2::SetPose, L"p1"},
                        {Selection2::SetSkin, L"s1"},
                        {Selection2::SetStyle, L"k1m1"}};
  for (const Case& one : cases) {
    for (const wchar_t* bad : {static_cast<const wchar_t*>(nullptr), L"unknown"}) {
      one.set(bad);
      EXPECT_EQ(build(), nullptr);
      EXPECT_TRUE(scene().nodes().empty());
      EXPECT_EQ(scene().layers().layers().size(), 1U);
      EXPECT_TRUE(undo().undoNames().empty());
      EXPECT_EQ(theHold.GetBeginDepth(), 0);
    }
    one.set(one.good);
  }
  EXPECT_NE(build(), nullptr);
}

TEST_F(CharacterBuild, ASecondOneSharesEveryProxyUntilTheLastNodeIsDeleted) {
  build();
  const std::vector<Node*> first = proxies();
  IParamBlock2* body = first[0]->GetObjectRef()->GetParamBlock(0);
  body->SetValue(2, 0, 3.0F);
  clearLog();
  build();
  float scale = 0.0F;
  Interval valid = FOREVER;
  body->GetValue(2, 0, scale, valid);
  EXPECT_EQ(scale, 1.0F);
  EXPECT_EQ(countLogged(L"use instance..."), static_cast<int>(first.size()));
  const std::vector<Node*> both = proxies();
  ASSERT_EQ(both.size(), 2 * first.size());
  for (std::size_t i = 0; i < first.size(); ++i) {
    EXPECT_EQ(both[i + first.size()]->GetObjectRef(), first[i]->GetObjectRef());
    EXPECT_EQ(both[i + first.size()]->GetMtl(), first[i]->GetMtl());
  }
  clearLog();
  GetCOREInterface()->DeleteNode(both[0]);
  EXPECT_EQ(countLogged(L"Decrease count..."), 1);
  EXPECT_EQ(countLogged(L"Delete object from database..."), 0);
  GetCOREInterface()->DeleteNode(both[first.size()]);
  EXPECT_EQ(countLogged(L"Delete object from database..."), 1);
  clearLog();
  build();
  EXPECT_EQ(countLogged(L"use instance..."), static_cast<int>(first.size()) - 1);
}

TEST_F(CharacterBuild, SurvivesUndoRedoDeletionAndNewScenesInAnyOrder) {
  addAsset(L"a1");
  const std::size_t nodes = 6;  // head, parent, body, seat, clothing, bag
  const auto buildAnew = [&] {
    clearLog();
    ASSERT_NE(build(), nullptr);
  };
  buildAnew();
  EXPECT_EQ(scene().nodes().size(), nodes);
  undo().undo();
  EXPECT_TRUE(scene().nodes().empty());
  EXPECT_EQ(countLogged(L"Delete object from database..."), 4);
  undo().redo();
  EXPECT_EQ(scene().nodes().size(), nodes);
  undo().undo();
  buildAnew();
  EXPECT_EQ(countLogged(L"use instance..."), 0) << "what undo took away is not in the register any more";
  EXPECT_EQ(scene().nodes().size(), nodes);
  EXPECT_EQ(undo().undoNames().size(), 1U);
  GetCOREInterface()->DeleteNode(proxies().front());
  undo().undo();
  EXPECT_TRUE(scene().nodes().empty());
  undo().redo();
  EXPECT_EQ(scene().nodes().size(), nodes - 1) << "the deleted body stays away";
  Application::instance().newScene();
  buildAnew();
  EXPECT_EQ(countLogged(L"use instance..."), 0);
  EXPECT_EQ(scene().nodes().size(), nodes);
  for (Node* node : scene().nodes()) node->EvalWorldState(0);
}

TEST_F(CharacterBuild, LeavesAnAssetWithoutAMatrixRowUnplacedAndBare) {
  addAsset(L"a6");
  addAsset(L"a1");
  addAsset(L"g1", L"g1m1");
  Selection2::SetPose(L"p2");
  ASSERT_NE(build(), nullptr);
  expectComplaints({L"could not find asset matrix...", L"could not find asset matrix..."});
  ASSERT_EQ(proxies().size(), 5U) << "pose p2 has no mandatory elements";
  for (std::size_t i = 2; i < 5; ++i) {
    EXPECT_EQ(materialOf(proxies()[i]), L"(none)");
    expectNear(proxies()[i]->GetNodeTM(0), Matrix3(TRUE));
  }
}

TEST_F(CharacterBuild, WithoutTheRendererMakesParentAndGroupAloneAndTriesAgainNextTime) {
  Application::instance().classes().setRendererPresent(false);
  EXPECT_NE(build(), nullptr);
  EXPECT_EQ(scene().nodes().size(), 2U);
  Application::instance().classes().setRendererPresent(true);
  EXPECT_NE(build(), nullptr);
  EXPECT_EQ(proxies().size(), 3U);
}

TEST_F(CharacterBuild, ShowsABoxAndSaysWhyWhereAMeshCannotBeRead) {
  std::filesystem::remove(repository().folder().path() / "anna/standing/pose.vrmesh");
  repository().folder().write("anna/seat/asset.vrmesh", std::string("vrmesh\0\1\2", 9));
  ASSERT_NE(build(), nullptr);
  for (std::size_t i = 0; i < 2; ++i) {
    const auto* proxy = dynamic_cast<ProxyObject*>(proxies()[i]->GetObjectRef());
    EXPECT_FALSE(proxy->problem().empty());
    EXPECT_FALSE(proxy->bounds().IsEmpty());
  }
}

}  // namespace
