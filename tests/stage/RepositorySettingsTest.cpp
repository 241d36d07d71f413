#include "apps/stage/RepositorySettings.h"

#include <gtest/gtest.h>

#include "core/Settings.h"
#include "repository/Parser2.h"
#include "tests/support/LocalAppData.h"
#include "tests/support/LogStoreFixture.h"
#include "tests/support/SmallRepository.h"

namespace {

class RepositorySettings : public support::LogStoreFixture {
 protected:
  void TearDown() override {
    ZORVEL::Settings::FreeSettings();
    LogStoreFixture::TearDown();
  }
  /// The plug-in's own way from settings to repository.
  static bool pluginReads() {
    ZORVEL::Settings::LoadSettings();
    return ZORVEL::Settings::GetPathSet() && ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath());
  }

  support::LocalAppData user_;
  support::SmallRepository repository_;
};

TEST_F(RepositorySettings, LeadThePluginToTheRepositoryAndLeaveTheUsersAlone) {
  const auto farEast = repository_.folder().path() / "倉庫";
  std::filesystem::create_directory_symlink(repository_.folder().path(), farEast);
  for (const auto& folder : {repository_.folder().path(), farEast}) {
    const stage::RepositorySettings settings(folder);
    EXPECT_EQ(settings.error(), "");
    EXPECT_TRUE(pluginReads()) << folder;
  }
  EXPECT_TRUE(std::filesystem::is_empty(user_.folder().path()));
}

TEST_F(RepositorySettings, SayWhenThereIsNoSuchFolder) {
  std::filesystem::path made;
  {
    const stage::RepositorySettings settings(repository_.folder().path() / "nowhere");
    EXPECT_NE(settings.error().find("nowhere is not a folder"), std::string::npos);
    made = settings.folder();
  }
  EXPECT_FALSE(std::filesystem::exists(made));
}

}  // namespace
