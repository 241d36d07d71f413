#include "core/Settings.h"

#include <shlobj.h>

#include "tests/support/LocalAppData.h"
#include "tests/support/LogStoreFixture.h"

namespace ZORVEL {

class SettingsTest : public support::LogStoreFixture {
 protected:
  void TearDown() override {
    if (Settings::CheckSingleton()) Settings::FreeSettings();
    LogStoreFixture::TearDown();
  }

  std::wstring pathFromFile(const std::string& content) {
    appData_.folder().write("zorvel.ini", content);
    Settings::LoadSettings();
    return Settings::GetPathSet() ? Settings::GetPath() : L"(not set)";
  }

  support::LocalAppData appData_;
};

TEST_F(SettingsTest, WithoutAnInstanceEveryOperationNamesItsOwnOrAnotherAsItAlwaysDid) {
  Settings::FreeSettings();
  EXPECT_FALSE(Settings::CheckSingleton());
  EXPECT_EQ(Settings::GetSingleton(), nullptr);
  EXPECT_FALSE(Settings::GetPathSet());
  EXPECT_EQ(Settings::GetPath(), nullptr);
  EXPECT_FALSE(Settings::StorePath(L"C:\\r"));
  EXPECT_FALSE(Settings::SaveToSettingsFile());
  EXPECT_FALSE(Settings::LoadFromSettingsFile());
  expectComplaints(
      {L"Settings::FreeSettings - singleton is nullptr", L"Settings::CheckSingleton - singleton is nullptr",
       L"Settings::GetSingleton - singleton is nullptr", L"Settings::GetPathSet - singleton is nullptr",
       L"Settings::GetPath - singleton is nullptr", L"Settings::GetPathSet - singleton is nullptr",
       L"Settings::SaveToSettingsFile - singleton is nullptr", L"Settings::SaveToSettingsFile - singleton is nullptr"});
  EXPECT_FALSE(std::filesystem::exists(appData_.folder().path() / "zorvel.ini"));
}

TEST_F(SettingsTest, TakesTheFileAsItStandsFromThreeCharactersOn) {
  EXPECT_EQ(pathFromFile(""), L"(not set)");
  EXPECT_EQ(pathFromFile("C:"), L"(not set)");
  EXPECT_EQ(pathFromFile("C:\\"), L"C:\\");
  EXPECT_EQ(pathFromFile(" C:\\r \r\n"), L" C:\\r \r\n");
  EXPECT_EQ(pathFromFile("C:\\\xE4\xFF"), L"C:\\\u00E4\u00FF");
  EXPECT_EQ(countLogged(L"Settings::LoadSettings - singleton was not nullptr"), 4);
}

TEST_F(SettingsTest, LoadsWithoutAPathWhenTheFileCannotBeRead) {
  EXPECT_TRUE(Settings::LoadSettings());
  EXPECT_FALSE(Settings::GetPathSet());
  EXPECT_STREQ(Settings::GetPath(), L"");
  appData_.folder().makeFolder("zorvel.ini");
  EXPECT_FALSE(Settings::LoadFromSettingsFile());
  EXPECT_TRUE(Settings::StorePath(L"C:\\kept")) << "a file that cannot be written is not reported";
  EXPECT_STREQ(Settings::GetPath(), L"C:\\kept");
}

TEST_F(SettingsTest, TheFileEndsBeforeACharacterBeyondOneByteAndMemoryKeepsThePathWhole) {
  Settings::LoadSettings();
  EXPECT_TRUE(Settings::StorePath(L"D:\\h\u00E4user\u00FF\u0100\\x"));
  EXPECT_STREQ(Settings::GetPath(), L"D:\\h\u00E4user\u00FF\u0100\\x");
  EXPECT_EQ(appData_.folder().read("zorvel.ini"), "D:\\h\xE4user\xFF");
  expectLogged(DEBUG_INFO, appData_.folder().wide() + L"\\zorvel.ini");
  EXPECT_FALSE(Settings::StorePath(nullptr));
  EXPECT_TRUE(Settings::LoadFromSettingsFile());
  EXPECT_STREQ(Settings::GetPath(), L"D:\\h\u00E4user\u00FF");
}

TEST_F(SettingsTest, WhatIsKeptOfAPathIsKnownBeforeItIsStored) {
  const struct {
    std::wstring path;
    PathKeeping keeping;
    std::size_t length;
  } cases[] = {{L"C:\\", PathKeeping::Whole, 3},
               {L"D:\\h\u00E4user\u00FF\u0100\\x", PathKeeping::Cut, 10},
               {L"\u0100:\\x", PathKeeping::Cut, 0},
               {L"C:", PathKeeping::TooShort, 2},
               {std::wstring(1 << 20, L'x'), PathKeeping::Whole, 1 << 20},
               {std::wstring((1 << 20) + 1, L'x'), PathKeeping::TooLong, (1 << 20) + 1}};
  for (const auto& one : cases) {
    const KeptPath kept = Settings::WhatIsKept(one.path);
    EXPECT_EQ(kept.keeping, one.keeping);
    EXPECT_EQ(kept.length, one.length);
    Settings::FreeSettings();
    Settings::LoadSettings();
    Settings::StorePath(one.path.c_str());
    EXPECT_EQ(appData_.folder().read("zorvel.ini").size(), kept.length);
    Settings::FreeSettings();
    Settings::LoadSettings();
    EXPECT_EQ(Settings::GetPath() == one.path, kept.keeping == PathKeeping::Whole);
  }
  clearLog();
}

}  // namespace ZORVEL
