#include <dlfcn.h>
#include <gtest/gtest.h>
#include <max.h>
#include <maxscript/maxscript.h>

#include <filesystem>

#include "host/actions/ActionManager.h"
#include "host/actions/IconFolders.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"
#include "host/plugins/ModuleLoader.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/Listener.h"
#include "host/services/Notifications.h"
#include "tests/support/LocalAppData.h"

namespace {

using host::Application;

constexpr ActionTableId TABLE = 0x0B250BC2;

using Lines = std::vector<std::wstring>;

/// What the module recorded; the module must be loaded.
Lines recorded(const std::filesystem::path& file) {
  void* handle = dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle == nullptr) return {};
  using Take = void (*)(void*, int, const wchar_t*);
  const auto lines = reinterpret_cast<void (*)(int, Take, void*)>(dlsym(handle, "ModuleLogLines"));
  Lines result;
  if (lines != nullptr) {
    lines(
        0, [](void* to, int, const wchar_t* text) { static_cast<Lines*>(to)->push_back(text); }, &result);
  }
  dlclose(handle);
  return result;
}

class ZorvelModule : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    Application::instance().reset();
    Application::instance().listener().clear();
    registrations_ = Application::instance().notifications().count();
  }
  void TearDown() override {
    loader().shutDown();
    Application::instance().reset();
  }
  static host::ModuleLoader& loader() { return Application::instance().modules(); }
  static std::filesystem::path file(const std::string& name) { return std::filesystem::path(MODULE_FOLDER) / name; }
  std::size_t registered() const { return Application::instance().notifications().count() - registrations_; }

 private:
  support::LocalAppData appData_;
  std::size_t registrations_ = 0;
};

TEST_P(ZorvelModule, StartsStopsAndLeavesNothingBehindAnyNumberOfTimes) {
  host::ActionManager& actions = Application::instance().actions();
  for (int round = 0; round < 3; ++round) {
    ASSERT_EQ(loader().load(file(GetParam())), "");
    EXPECT_EQ(loader().descriptions(), Lines{L"Zorvel - Configurator"});
    ASSERT_NE(actions.FindTable(TABLE), nullptr);
    EXPECT_STREQ(actions.FindTable(TABLE)->GetName(), L"ZORVEL");
    EXPECT_EQ(actions.contextName(TABLE), L"ZORVEL");
    EXPECT_TRUE(actions.isActive(TABLE));
    EXPECT_EQ(registered(), 3U);
    EXPECT_EQ(Application::instance().scripts().texts().back(), L"qat.add \"ZORVEL\" \"ZORVEL Manager\"");
    ASSERT_EQ(Application::instance().quickAccess().buttons().size(), 1U);
    EXPECT_EQ(Application::instance().quickAccess().buttons().front().command, 40001);
    loader().shutDown();
    EXPECT_EQ(actions.FindTable(TABLE), nullptr);
    EXPECT_EQ(registered(), 0U);
    EXPECT_TRUE(Application::instance().quickAccess().buttons().empty());
  }
}

INSTANTIATE_TEST_SUITE_P(BothSinks, ZorvelModule, testing::Values("zorvel.gup", "zorvel-diagnostic.gup"));

class DiagnosticModule : public ZorvelModule {
 protected:
  void SetUp() override {
    ZorvelModule::SetUp();
    ASSERT_EQ(loader().load(file("zorvel-diagnostic.gup")), "");
  }
  static Lines lines() { return recorded(file("zorvel-diagnostic.gup")); }
  static int count(const std::wstring& text) {
    const Lines all = lines();
    return static_cast<int>(std::count(all.begin(), all.end(), text));
  }
};

TEST_F(DiagnosticModule, TellsItsStartInOrder) {
  const Lines expected = {L"zorvel::Start - start plugin...", L"zorvel::Start - load settings...",
                          L"zorvel::Start - activate action...", L"zorvel::Start - plugin started..."};
  EXPECT_EQ(lines(), expected);
}

TEST_F(DiagnosticModule, RunsItsActionEachTimeFromScriptsAndBar) {
  EXPECT_NE(ExecuteMAXScriptScript(L"actionMan.executeAction 186977218 \"40001\""), FALSE);
  EXPECT_TRUE(Application::instance().actions().executeAction(TABLE, 40001));
  EXPECT_EQ(count(L"Action called..."), 2);
  EXPECT_EQ(count(L"CallMainWindow"), 2);
  EXPECT_EQ(count(L"User selected no directory"), 2) << "no path is set, and nobody answers the dialog";
  EXPECT_EQ(ExecuteMAXScriptScript(L"actionMan.executeAction 186977218 \"7\""), FALSE);
}

TEST_F(DiagnosticModule, FollowsNewAndOpenedScenes) {
  FileIOType type = IOTYPE_MAX;
  BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type);
  type = IOTYPE_MATLIB;
  BroadcastNotification(NOTIFY_FILE_POST_OPEN, &type);
  Application::instance().reset();
  EXPECT_EQ(count(L"open max file..."), 1);
  EXPECT_EQ(count(L"new max scene..."), 1);
}

TEST_F(DiagnosticModule, HasAnIconInBothSizes) {
  Application::instance().icons().set({file("icons")});
  MaxIcon* icon = Application::instance().actions().FindTable(TABLE)->GetIcon(40001);
  EXPECT_EQ(icon, Application::instance().actions().FindTable(TABLE)->GetIcon(1));
  EXPECT_EQ(Application::instance().icons().picture(icon, 16).width(), 16);
  EXPECT_EQ(Application::instance().icons().picture(icon, 24).width(), 24);
}

}  // namespace
