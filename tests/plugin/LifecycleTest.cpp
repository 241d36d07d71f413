#include <gtest/gtest.h>
#include <max.h>

#include "core/Settings.h"
#include "host/actions/ActionManager.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/Notifications.h"
#include "model/Data2.h"
#include "plugin/zorvel.h"
#include "scene/Placement.h"
#include "tests/support/LocalAppData.h"
#include "tests/support/LogStoreFixture.h"

extern "C" {
int LibNumberClasses();
ClassDesc* LibClassDesc(int i);
const MCHAR* LibDescription();
ULONG LibVersion();
}

namespace {

class Lifecycle : public support::LogStoreFixture {
 protected:
  static std::size_t registrations() { return host::Application::instance().notifications().count(); }

  static host::CommandModes& modes() { return host::Application::instance().modes(); }

  support::LocalAppData appData_;
};

TEST_F(Lifecycle, StartsWithoutItsActionTableAndStopsMoreThanOnce) {
  const std::size_t before = registrations();
  auto* plugin = static_cast<GUP*>(LibClassDesc(0)->Create());
  EXPECT_EQ(plugin->Start(), GUPRESULT_KEEP);
  EXPECT_EQ(registrations(), before + 3);
  EXPECT_NE(ZORVEL::Settings::GetSingleton(), nullptr);
  ZORVEL::Data2::AddCharacter();
  ZORVEL::Placement::StartPlacement(GetCOREInterface()->GetRootNode());
  plugin->Stop();
  EXPECT_EQ(&modes().current(), &modes().standard()) << "stopped in the middle of a placement";
  EXPECT_EQ(registrations(), before);
  EXPECT_EQ(ZORVEL::Data2::GetCharacterCount(), 0);
  EXPECT_FALSE(ZORVEL::LogStore::Exists());
  plugin->Stop();
  EXPECT_EQ(registrations(), before);
  EXPECT_EQ(plugin->Control(7), 0U);
  EXPECT_EQ(plugin->Save(nullptr), IO_OK);
  plugin->DeleteThis();
}

TEST_F(Lifecycle, HandsItsActionsBackWhenItStops) {
  const ActionTableId table = 0x0B250BC2;
  host::ActionManager& actions = host::Application::instance().actions();
  actions.RegisterActionTable(LibClassDesc(0)->GetActionTable(0));
  auto* plugin = static_cast<GUP*>(LibClassDesc(0)->Create());
  plugin->Start();
  EXPECT_TRUE(actions.isActive(table));
  plugin->Stop();
  EXPECT_FALSE(actions.isActive(table)) << "its callback has gone";
  plugin->DeleteThis();
  actions.removeTable(table);
}

TEST_F(Lifecycle, StopsCleanlyWithoutEverHavingStarted) {
  auto* plugin = new ZORVEL::zorvel;
  plugin->Stop();
  plugin->DeleteThis();
}

TEST_F(Lifecycle, DescribesOneClassAndNoTextWithoutAModule) {
  EXPECT_EQ(LibNumberClasses(), 1);
  EXPECT_EQ(LibVersion(), 0x4E203200U);
  ClassDesc* description = LibClassDesc(0);
  EXPECT_EQ(LibClassDesc(0), description);
  EXPECT_EQ(LibClassDesc(1), nullptr);
  EXPECT_EQ(LibClassDesc(-1), nullptr);
  EXPECT_EQ(description->ClassID(), Class_ID(0x269D2BA1, 0x25482A2C));
  EXPECT_EQ(description->SuperClassID(), GUP_CLASS_ID);
  EXPECT_STREQ(description->InternalName(), L"zorvel");
  EXPECT_EQ(LibDescription(), nullptr);
}

}  // namespace
