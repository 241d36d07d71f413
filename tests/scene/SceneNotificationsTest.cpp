#include "scene/SceneNotifications.h"

#include <gtest/gtest.h>
#include <max.h>

#include "host/application/Application.h"
#include "host/scene/CircleShape.h"
#include "host/scene/Scene.h"
#include "scene/ProxyObjectDatabase.h"
#include "tests/support/LogStoreFixture.h"

namespace {

using ZORVEL::ProxyObjectDatabase;

class SceneNotifications : public support::LogStoreFixture {
 protected:
  void SetUp() override {
    LogStoreFixture::SetUp();
    host::Application::instance().reset();
    ZORVEL::SceneNotifications::Register();
  }
  void TearDown() override {
    ZORVEL::SceneNotifications::Unregister();
    host::Application::instance().reset();
    ProxyObjectDatabase::Clear();
    LogStoreFixture::TearDown();
  }
  static void opened(FileIOType type) { BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type); }
};

TEST_F(SceneNotifications, EmptyTheRegisterForANewAndAnOpenedSceneButNotForOtherFiles) {
  auto* object = new host::CircleShape;
  host::Application::instance().scene().create(object);
  ProxyObjectDatabase::Add(object, L"a.vrmesh");
  opened(IOTYPE_MATLIB);
  opened(IOTYPE_RENDER_PRESETS);
  BroadcastNotification(NOTIFY_FILE_POST_OPEN);
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"a.vrmesh"), object);
  opened(IOTYPE_MAX);
  EXPECT_EQ(countLogged(L"open max file..."), 1);
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"a.vrmesh"), nullptr);
  ProxyObjectDatabase::Add(object, L"a.vrmesh");
  host::Application::instance().newScene();
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"a.vrmesh"), nullptr);
}

TEST_F(SceneNotifications, ReleaseOnlyWhatIsRegisteredUnderItsExactName) {
  auto* object = new host::CircleShape;
  auto* other = new host::CircleShape;
  host::Scene& scene = host::Application::instance().scene();
  host::Node* node = scene.create(object);
  host::Node* stranger = scene.create(other);
  ProxyObjectDatabase::Add(object, L"C:\\a\\Body.vrmesh");
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"C:\\a\\body.vrmesh"), nullptr);
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"C:\\a\\\\Body.vrmesh"), nullptr);
  scene.remove(*stranger);
  EXPECT_EQ(countLogged(L"Decrease count..."), 0);
  scene.remove(*node);
  EXPECT_EQ(countLogged(L"Delete object from database..."), 1);
  EXPECT_EQ(ProxyObjectDatabase::LookUp(L"C:\\a\\Body.vrmesh"), nullptr);
}

TEST_F(SceneNotifications, AnObjectThatIsAddedAgainCountsAsUsedOnce) {
  auto* object = new host::CircleShape;
  host::Node* node = host::Application::instance().scene().create(object);
  ProxyObjectDatabase::Add(object, L"a.vrmesh");
  ProxyObjectDatabase::LookUp(L"a.vrmesh");
  ProxyObjectDatabase::Add(object, L"a.vrmesh");
  host::Application::instance().scene().remove(*node);
  EXPECT_EQ(countLogged(L"Delete object from database..."), 1);
}

}  // namespace
