#include "plugin/Commands.h"

#include <gtest/gtest.h>

#include <new>

#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/services/FileDialog.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "tests/support/LoadedRepositoryFixture.h"
#include "tests/support/LocalAppData.h"

namespace {

using host::Application;
using host::FileDialog;
using ZORVEL::Data2;
using ZORVEL::Selection2;
using ZORVEL::Settings;
namespace Commands = ZORVEL::Commands;

/// Starts like a plug-in that was just loaded: no repository in the store, the settings as the test makes them.
class CommandFacade : public support::LoadedRepositoryFixture {
 protected:
  void SetUp() override {
    LoadedRepositoryFixture::SetUp();
    answer(std::nullopt);
  }
  void TearDown() override {
    Application::instance().fileDialog().setProvider({});
    LoadedRepositoryFixture::TearDown();
  }
  void answer(const std::optional<std::filesystem::path>& file) {
    Application::instance().fileDialog().setProvider([this, file](const FileDialog::Question& question) {
      ++asked_;
      EXPECT_EQ(question.title, L"Select file \"zorvel.xml\"");
      const std::vector<std::pair<std::wstring, std::wstring>> filters = {{L"ZORVEL XML", L"*.XML"}};
      EXPECT_EQ(question.filters, filters);
      return file;
    });
  }
  static unsigned int uniqueOf(const ZORVEL::DataContainer* record) {
    return static_cast<unsigned int>(Data2::GetUnique(record));
  }
  static ZORVEL::CharacterData* anna() { return Data2::GetCharacter(L"c1"); }
  static unsigned int asset(int index) { return uniqueOf(anna()->GetContainerElement(ZORVEL::ASSETS, index)); }
  /// The window is not open: every refresh that a command asks for is such a line.
  void expectNoWindow(const wchar_t* entry) {
    expectLogged(ZORVEL::DEBUG_ERROR, std::wstring(L"MainWindow::") + entry + L" : no window..");
  }

  int asked_ = 0;
};

TEST_F(CommandFacade, AsksForTheRepositoryOnceAndKeepsItsFolderWithTheSeparator) {
  Data2::Clear();
  Selection2::AddAsset(1010);
  Settings::FreeSettings();
  const support::LocalAppData nothingKept;
  EXPECT_FALSE(Commands::ValidateData()) << "cancelled";
  EXPECT_STREQ(Selection2::GetCharacter(), L"") << "ids of another repository";
  EXPECT_EQ(Selection2::GetAssetCount(), 0);
  expectLogged(ZORVEL::DEBUG_INFO, L"User selected no directory");
  answer(repository().folder().path() / "none.xml");
  EXPECT_FALSE(Commands::ValidateData()) << "there is no such file";
  answer(repository().folder().path() / "zorvel.xml");
  EXPECT_TRUE(Commands::ValidateData());
  EXPECT_EQ(asked_, 3);
  const std::wstring path = Settings::GetPath();
  EXPECT_EQ(path.back(), L'\\');
  EXPECT_NE(anna(), nullptr);
  Settings::LoadSettings();
  EXPECT_EQ(path, Settings::GetPath()) << "read back from the file";
  clearLog();
  EXPECT_TRUE(Commands::ValidateData());
  EXPECT_EQ(asked_, 3);
  EXPECT_EQ(countLogged(L"Parser2 checks repository at:"), 0);
  clearLog();
}

TEST_F(CommandFacade, AResetThatIsCancelledKeepsTheStoreAndEmptiesTheSelection) {
  Commands::ResetRepository();
  EXPECT_NE(anna(), nullptr);
  EXPECT_STREQ(Selection2::GetCharacter(), L"");
  expectComplaints({});
  const support::TemporaryFolder empty;
  answer(empty.write("zorvel.xml", "<zorvel/>"));
  Commands::ResetRepository();
  EXPECT_EQ(Data2::GetCharacterCount(), 0);
  expectLogged(ZORVEL::DEBUG_INFO, L"No Characters found!");
  expectNoWindow(L"Rebuild");
}

TEST_F(CommandFacade, ReloadsTheSamePathWithFreshIds) {
  const unsigned int before = asset(0);
  repository().folder().makeFolder("anna/dummy");
  Commands::ReloadRepository();
  EXPECT_EQ(asset(0), before) << "ids start anew in document order";
  EXPECT_EQ(asked_, 0);
  EXPECT_TRUE(Data2::IsValidated());
  expectNoWindow(L"Rebuild");
}

TEST_F(CommandFacade, CharacterAndClothingClearWhatHangsOnThem) {
  Selection2::AddAsset(static_cast<int>(asset(0)));
  Commands::SetSelectedClothUnique(uniqueOf(anna()), uniqueOf(anna()->GetCloth(L"k1")), false);
  EXPECT_STREQ(Selection2::GetSkin(), L"s1");
  EXPECT_EQ(Selection2::GetPose(), nullptr);
  EXPECT_EQ(Selection2::GetStyle(), nullptr);
  EXPECT_EQ(Selection2::GetAssetCount(), 0);
  Commands::SetSelectedCharacterUnique(99999, false);
  EXPECT_STREQ(Selection2::GetCloth(), L"k1") << "an unknown id changes nothing";
  Commands::SetSelectedCharacterUnique(uniqueOf(anna()), true);
  EXPECT_EQ(Selection2::GetCloth(), nullptr);
  EXPECT_EQ(Selection2::GetSkin(), nullptr);
  expectNoWindow(L"UpdateCharacterSelectionFromGUI");
  Commands::SetSelectedCharacterUnique(0, true);
  expectLogged(ZORVEL::DEBUG_ERROR, L"Commands::SetSelectedCharacterUnique: invalid unqiue");
}

TEST_F(CommandFacade, AssetsFollowTheRulesOfTheirCategory) {
  const unsigned int bag = asset(0);
  const unsigned int hat = asset(2);
  const unsigned int bench = uniqueOf(Data2::GetGlobalAsset(0));
  Commands::SetSelectedAsset(bag, false);
  Commands::SetSelectedAsset(bench, false);
  EXPECT_EQ(Selection2::GetAssetCount(), 2) << "a category of several, with an asset that all share";
  Commands::SetSelectedAsset(hat, false);
  EXPECT_FALSE(Selection2::CheckSelectedAsset(static_cast<int>(bench)))
      << "replacing drops what is no asset of the character";
  EXPECT_TRUE(Selection2::CheckSelectedAsset(static_cast<int>(bag)));
  Commands::SetDeselectedAsset(hat, false);
  EXPECT_TRUE(Selection2::CheckSelectedAsset(static_cast<int>(hat))) << "a required category keeps its asset";
  Commands::SetSelectedAsset(hat, false);
  EXPECT_EQ(Selection2::GetAssetCount(), 2) << "replaced by itself";
  Commands::SetDeselectedAsset(bag, true);
  EXPECT_FALSE(Selection2::CheckSelectedAsset(static_cast<int>(bag)));
  expectNoWindow(L"UpdateElementSelection");
  Commands::SetSelectedAsset(0, true);
  Commands::SetSelectedAsset(99999, false);
  EXPECT_EQ(Selection2::GetAssetCount(), 1);
}

TEST_F(CommandFacade, APoseRebuildsTheTabsAndAnUnknownOneTakesTheChoiceBack) {
  Commands::SetSelectedPose(uniqueOf(anna()->GetPose(L"p2")), true);
  EXPECT_STREQ(Selection2::GetPose(), L"p2");
  expectNoWindow(L"RebuildTabs");
  expectNoWindow(L"UpdateElementSelection");
  Commands::SetSelectedSkin(99999, false);
  EXPECT_EQ(Selection2::GetSkin(), nullptr);
  Commands::SetSelectedPose(99999, false);
  EXPECT_EQ(Selection2::GetPose(), nullptr);
}

TEST_F(CommandFacade, WhatTheWindowSendsWhileItRebuildsItsTabsForAPoseIsIgnored) {
  const unsigned int skin = uniqueOf(anna()->GetSkin(L"s1"));
  const unsigned int style = uniqueOf(anna()->GetStyle(L"k1", L"k1m2"));
  const unsigned int pose = uniqueOf(anna()->GetPose(L"p2"));
  const unsigned int bag = asset(0);
  Selection2::AddAsset(static_cast<int>(asset(3)));
  Selection2::SetSkin(nullptr);
  int rebuilds = 0;
  // The window answers a rebuild with events of its own, in the middle of it, and then runs out of memory.
  ZORVEL::LogStore::SetListener([&](ZORVEL::DEBUG_TYPE, const wchar_t* text) {
    if (std::wstring(text) != L"MainWindow::RebuildTabs : no window..") return;
    ++rebuilds;
    Commands::SetSelectedPose(0, true);
    Commands::SetSelectedSkin(skin, true);
    Commands::SetSelectedStyle(style, true);
    Commands::SetSelectedAsset(bag, true);
    Commands::SetDeselectedAsset(asset(3), false);
    throw std::bad_alloc();
  });
  EXPECT_NO_THROW(Commands::SetSelectedPose(pose, true));
  ZORVEL::LogStore::SetListener({});
  EXPECT_EQ(rebuilds, 1);
  EXPECT_STREQ(Selection2::GetPose(), L"p2");
  EXPECT_EQ(Selection2::GetSkin(), nullptr);
  EXPECT_STREQ(Selection2::GetStyle(), L"k1m1");
  EXPECT_EQ(Selection2::GetAssetCount(), 0) << "taking away does not look at the flag";
  Commands::SetSelectedSkin(skin, false);
  EXPECT_STREQ(Selection2::GetSkin(), L"s1") << "the flag is down again";
  expectNoWindow(L"RebuildTabs");
  expectNoWindow(L"UpdateElementSelection");
}

}  // namespace
