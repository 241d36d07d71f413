#include "host/plugins/ModuleLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <maxscript/maxscript.h>

#include <algorithm>

#include "host/actions/ActionManager.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/Listener.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using host::Application;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

const wchar_t* const BUTTON = L"qat.add \"Test Group\" \"Do \\\"it\\\"\"";

class ModuleLoader : public testing::Test {
 protected:
  ModuleLoader() : first_(texts().size()) { Application::instance().listener().clear(); }

  static const std::vector<std::wstring>& texts() { return Application::instance().scripts().texts(); }
  static std::string path(const std::string& name) { return std::string(TEST_MODULES) + name + "_module.gup"; }
  static host::ActionManager& actions() { return Application::instance().actions(); }
  std::vector<std::wstring> events() const {
    return {texts().begin() + static_cast<std::ptrdiff_t>(first_), texts().end()};
  }

  std::size_t first_;
  host::ModuleLoader loader_{actions(), Application::instance().modes(), Application::instance().undo()};
};

TEST_F(ModuleLoader, StartsAModuleInOrderAndTakesItDownInReverse) {
  EXPECT_EQ(loader_.load(path("good")), "");
  EXPECT_THAT(loader_.descriptions(), ElementsAre(L"A module for tests"));
  EXPECT_THAT(loader_.load(path("good")), HasSubstr("good_module.gup is loaded already"));
  EXPECT_EQ(actions().NumActionTables(), 1);
  EXPECT_EQ(actions().contextName(0x1234), L"Test Group");
  EXPECT_EQ(actions().RegisterActionContext(0x1234, L"Other"), FALSE);
  ASSERT_EQ(Application::instance().quickAccess().buttons().size(), 1U);
  EXPECT_EQ(ExecuteMAXScriptScript(L"actionMan.executeAction 4660 \"7\""), TRUE);
  loader_.shutDown();
  EXPECT_THAT(events(), ElementsAre(L"attached", L"initialized", BUTTON, L"started with table",
                                    L"actionMan.executeAction 4660 \"7\"", L"action", L"stopped", L"deleted",
                                    L"shut down", L"table ended", L"detached"));
  EXPECT_EQ(actions().NumActionTables(), 0);
  EXPECT_TRUE(Application::instance().quickAccess().buttons().empty());
  EXPECT_EQ(ExecuteMAXScriptScript(L"actionMan.executeAction 4660 \"7\""), FALSE);

  EXPECT_EQ(loader_.load(path("good")), "");
  EXPECT_EQ(loader_.count(), 1U);
}

TEST_F(ModuleLoader, RefusesWhatIsNoModuleForThisHostInOneLineAndLeavesNothing) {
  const support::TemporaryFolder folder;
  const std::string text = folder.write("text.gup", "no module").string();
  const std::vector<std::pair<std::string, std::string>> refused = {
      {path("other_version"), "release 19000, API number 49; this host has release 20000, API number 50"},
      {path("uninitialized"), "could not initialize"},
      {path("no_plugin"), "does not export LibDescription"},
      {path("throwing"), "threw an exception in Start: no licence"},
      {path("aborting"), "gave up when it was started"},
      {path("absent"), "is no module that can be loaded"},
      {text, "is no module that can be loaded"},
      {folder.path().string(), "is no module that can be loaded"}};
  for (const auto& one : refused) {
    const std::string line = loader_.load(one.first);
    EXPECT_THAT(line, HasSubstr(one.second));
    EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 0);
    EXPECT_THAT(Application::instance().listener().lines().back(), line);
    EXPECT_EQ(loader_.count(), 0U);
    EXPECT_EQ(actions().NumActionTables(), 0) << one.first;
  }
  // What was attached was detached, and a utility that failed to start is not stopped.
  const std::vector<std::wstring> seen = events();
  EXPECT_EQ(std::count(seen.begin(), seen.end(), L"attached"), std::count(seen.begin(), seen.end(), L"detached"));
  EXPECT_EQ(std::count(seen.begin(), seen.end(), L"stopped"), 0);
  EXPECT_EQ(std::count(seen.begin(), seen.end(), L"deleted"), 2);
}

TEST_F(ModuleLoader, ToleratesADescriptorThatIsNone) {
  EXPECT_EQ(loader_.load(path("null_descriptor")), "");
  EXPECT_EQ(loader_.count(), 1U);
  loader_.shutDown();
  EXPECT_THAT(events(), ElementsAre(L"attached", L"initialized", L"shut down", L"detached"));
}

}  // namespace
