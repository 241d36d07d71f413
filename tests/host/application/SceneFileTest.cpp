#include "host/application/SceneFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <max.h>
#include <stdmat.h>

#include <regex>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/formats/SceneJson.h"
#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialClasses.h"
#include "host/meshes/PlaceholderMesh.h"
#include "host/scene/CircleShape.h"
#include "host/scene/LampHelper.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"
#include "host/scene/SurroundingsObject.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"
#include "host/services/Units.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::Application;
using host::Node;
using host::Ref;
using testing::ElementsAre;
using testing::HasSubstr;

class SceneFile : public testing::Test {
 protected:
  SceneFile() {
    Application::instance().reset();
    for (const int code : CODES) RegisterNotification(note, this, code);
  }
  ~SceneFile() override {
    for (const int code : CODES) UnRegisterNotification(note, this, code);
    Application::instance().reset();
  }

  static void note(void* self, NotifyInfo* info) {
    int number = info->intcode;
    const bool file =
        number == NOTIFY_FILE_PRE_OPEN || number == NOTIFY_FILE_POST_OPEN || number == NOTIFY_FILE_OPEN_FAILED;
    if (file && *static_cast<FileIOType*>(info->callParam) != IOTYPE_MAX) number = -1;
    static_cast<SceneFile*>(self)->codes_.push_back(number);
  }
  static host::Scene& scene() { return Application::instance().scene(); }
  static std::string withoutHandles(const std::string& text) {
    return std::regex_replace(text, std::regex("\"handle\": [0-9]+"), "\"handle\": 0");
  }
  std::filesystem::path file(const char* name = "scene.json") const { return folder_.path() / name; }

  static constexpr int CODES[] = {5, 6, 7, 8, 9, 10, 15, 67, 68, 69};
  std::vector<int> codes_;
  support::TemporaryFolder folder_;
};

/// A bit of everything that a scene can hold, shared things and awkward numbers and names among it.
void buildScene(host::Scene& scene) {
  Application::instance().units().set(0, 2.5F);
  MSTR layerName(L"Möbel \"1\"");
  ILayer* layer = scene.layers().CreateLayer(layerName);
  const Ref<Object> shared(new host::ProxyObject);
  shared->GetParamBlock(0)->SetValue(host::ProxyObject::FILE_NAME, 0, L"X:\\none\\chair.vrmesh");
  Node* first = scene.create(shared.get());
  Node* second = scene.create(shared.get());
  Matrix3 tm(TRUE);
  tm.Scale({0.1F, 1.0F / 3.0F, 7});
  tm.RotateX(0.3F);
  tm.Translate({1e-20F, -3e7F, 0.7F});
  first->SetNodeTM(0, tm);
  first->Move(0, Matrix3(TRUE), {1, 2, 3}, TRUE, TRUE, PIV_PIVOT_ONLY, TRUE);
  second->AttachChild(first, 1);
  layer->AddToLayer(first);
  Node* circle = scene.create(new host::CircleShape);
  circle->GetObjectRef()->GetParamBlock()->SetValue(0, 0, 12.5F);
  circle->SetUserPropString(L"zeta", L"first");
  circle->SetUserPropString(L"alpha", L"a \"b\" \\ \n \u00E9 \U0001F600");
  Node* inner = scene.group({second, circle}, L"inner");
  Node* floor = scene.create(new host::SurroundingsObject(host::placeholderMesh()));
  scene.group({inner, floor}, L"outer");
  scene.create(new host::LampHelper)->SetName(L"");
  scene.select(*circle, true);

  const Ref<Mtl> multi(host::createMaterial(host::MULTI_MATERIAL));
  const Ref<Mtl> scaled(host::createMaterial(host::SCALED_MATERIAL));
  scaled->SetName(L"cloth");
  const Ref<Texmap> bitmap(new host::BitmapTexture(L"C:\\maps\\cloth.png"));
  scaled->GetParamBlock(0)->SetValue(host::SCALED_DIFFUSE_MAP, 0, bitmap.get());
  scaled->GetParamBlock(0)->SetValue(host::SCALED_LENGTH, 0, 0.1F);
  multi->SetSubMtl(2, scaled.get());
  multi->SetSubMtl(4, scaled.get());
  first->SetMtl(multi.get());
  second->SetMtl(scaled.get());
}

TEST_F(SceneFile, OpensWhatWasSavedDownToTheSameBytes) {
  buildScene(scene());
  ASSERT_EQ(host::saveScene(file()), "");
  Application::instance().reset();
  theHold.Begin();
  scene().create(new host::CircleShape);
  theHold.Accept(L"Create");
  codes_.clear();

  ASSERT_EQ(host::openScene(file()), "");
  EXPECT_THAT(codes_, ElementsAre(NOTIFY_FILE_PRE_OPEN, NOTIFY_FILE_POST_OPEN));
  EXPECT_TRUE(Application::instance().undo().undoNames().empty());
  ASSERT_EQ(host::saveScene(file("again.json")), "");
  EXPECT_EQ(withoutHandles(folder_.read("again.json")), withoutHandles(folder_.read("scene.json")));

  int type = 0;
  float scale = 0;
  GetMasterUnitInfo(&type, &scale);
  EXPECT_EQ(type, 0);
  EXPECT_EQ(scale, 2.5F);
  Node* child = scene().find(L"Object001");
  Node* parent = scene().find(L"Object002");
  ASSERT_TRUE(child != nullptr && parent != nullptr);
  EXPECT_EQ(child->GetParentNode(), parent);
  EXPECT_EQ(child->GetObjectRef(), parent->GetObjectRef());
  EXPECT_EQ(child->GetMtl()->GetSubMtl(2), parent->GetMtl());
  EXPECT_EQ(child->GetMtl()->GetSubMtl(4), parent->GetMtl());
  EXPECT_EQ(std::wstring(child->layer()->getName()), L"Möbel \"1\"");
  Node* inner = scene().find(L"inner");
  EXPECT_TRUE(inner->IsGroupHead() != FALSE && inner->IsGroupMember() != FALSE);
  ASSERT_EQ(scene().selection().size(), 1U);
  EXPECT_EQ(std::wstring(scene().selection()[0]->properties()[0].first), L"zeta");
}

TEST_F(SceneFile, LeavesTheSceneAloneWhenAnyPartOfTheFileIsNotReadable) {
  buildScene(scene());
  ASSERT_EQ(host::saveScene(file()), "");
  const std::string good = folder_.read("scene.json");
  scene().create(new host::CircleShape)->SetName(L"unsaved");
  theHold.Begin();
  scene().find(L"unsaved")->SetName(L"mine");
  theHold.Accept(L"Rename");
  const std::string before = host::sceneJson(scene(), Application::instance().units());
  const auto replaced = [&good](const std::string& what, const std::string& by) {
    const std::size_t at = good.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return std::string(good).replace(at, what.size(), by);
  };
  std::string deep = replaced("\"nodes\": [", "\"nodes\": [");
  deep.resize(deep.find("\"nodes\""));
  const std::string node = R"({"name":"n","local":[[1,0,0],[0,1,0],[0,0,1],[0,0,0]],"layer":"0","children":[)";
  deep += "\"nodes\":[";
  for (int i = 0; i < 100000; ++i) deep += node;
  for (int i = 0; i < 100000; ++i) deep += "]}";
  deep += "]}";

  const std::vector<std::pair<std::string, std::string>> damaged = {
      {"", "no scene file"},
      {"[]", "no scene file"},
      {std::string("\0\xFF\xFE", 3), "no scene file"},
      {good.substr(0, good.size() / 2), "no scene file"},
      {good.substr(0, good.size() - 3), "no scene file"},
      {replaced("zorvel-scene", "other-scene"), "no scene file"},
      {replaced("\"version\": 1", "\"version\": 99"), "version"},
      {replaced("\"type\": 0", "\"type\": 70"), "unit"},
      {replaced("\"layer\": \"0\"", "\"layer\": \"gone\""), "layer"},
      {replaced("\"group\": \"head\"", "\"group\": \"king\""), "group"},
      {replaced("\"local\"", "\"lokal\""), "damaged"},
      {replaced("\"ref\": ", "\"ref\": 99"), "reference"},
      {replaced("\"type\": \"float\"", "\"type\": \"flat\""), "parameter type"},
      {replaced("\"radius\": 12.5", "\"radius\": \"wide\""), "damaged"},
      {replaced("\"radius\": 12.5", "\"radius\": 1e39"), "a number is out of range: 1e+39"},
      {replaced("\"radius\": 12.5", "\"radius\": 1e999"), "a number in it is out of range"},
      {replaced("\"scale\": 2.5", "\"scale\": null"), "unit"},
      {replaced("\"type\": 0", "\"type\": 4294967296"), "out of range: 4294967296"},
      {replaced("\"version\": 1", "\"version\": 4294967297"), "out of range: 4294967297"},
      {replaced("\"version\": 1", "\"version\": 1.5"), "out of range: 1.5"},
      {replaced("\"id\": 1,", "\"id\": 18446744073709551615,"), "out of range"},
      {replaced("\"class\": [", "\"class\": [-1, "), "out of range: -1"},
      {replaced("\"triangles\": [", "\"materialIds\": [65536], \"triangles\": ["), "out of range: 65536"},
      {replaced("\"triangles\": [", "\"triangles\": [[0, 1, 4294967296],"), "out of range: 4294967296"},
      {replaced("\"type\": \"float\",", "\"id\": 70000, \"type\": \"float\","), "out of range: 70000"},
      {replaced("\"triangles\": [", "\"triangles\": [[0, 1, 99999],"), "mesh"},
      {deep, "too deep"}};
  for (const auto& one : damaged) {
    folder_.write("bad.json", one.first);
    Application::instance().listener().clear();
    codes_.clear();
    const std::string line = host::openScene(file("bad.json"));
    EXPECT_THAT(line, HasSubstr(one.second));
    EXPECT_THAT(Application::instance().listener().lines(), ElementsAre(line));
    EXPECT_THAT(codes_, ElementsAre(NOTIFY_FILE_OPEN_FAILED));
    EXPECT_EQ(host::sceneJson(scene(), Application::instance().units()), before) << one.second;
  }
  EXPECT_THAT(host::openScene(file("absent.json")), HasSubstr("absent.json could not be opened"));
  EXPECT_THAT(host::openScene(folder_.path()), HasSubstr("could not be opened"));
  EXPECT_TRUE(Application::instance().undo().undo());
}

TEST_F(SceneFile, KeepsTheFileThatIsThereWhenItCannotBeSaved) {
  EXPECT_THAT(host::saveScene(folder_.path() / "none/scene.json"), HasSubstr("could not be saved"));
}

TEST_F(SceneFile, ShowsABoxForSurroundingsThatCannotBeRead) {
  scene().create(new host::SurroundingsObject(L"Q:\\gone\\street.glb"));
  ASSERT_EQ(host::saveScene(file()), "");
  Application::instance().listener().clear();
  ASSERT_EQ(host::openScene(file()), "");
  auto* object = dynamic_cast<host::SurroundingsObject*>(scene().nodes()[0]->GetObjectRef());
  ASSERT_NE(object, nullptr);
  EXPECT_EQ(object->mesh(), host::placeholderMesh());
  EXPECT_EQ(object->fileName(), L"Q:\\gone\\street.glb");
  EXPECT_EQ(Application::instance().listener().lines().size(), 1U);
}

TEST_F(SceneFile, TellsNewAndResetInOrderWithNewNestedInReset) {
  scene().create(new host::CircleShape);
  codes_.clear();
  Application::instance().newScene();
  EXPECT_THAT(codes_, ElementsAre(NOTIFY_SYSTEM_PRE_NEW, NOTIFY_SYSTEM_POST_NEW));
  codes_.clear();
  Application::instance().reset();
  EXPECT_THAT(codes_, ElementsAre(NOTIFY_SYSTEM_PRE_RESET, NOTIFY_SYSTEM_PRE_NEW, NOTIFY_SYSTEM_POST_NEW,
                                  NOTIFY_SYSTEM_POST_RESET));
}

}  // namespace
