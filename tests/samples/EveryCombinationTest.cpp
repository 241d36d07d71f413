#include <max.h>

#include <algorithm>
#include <optional>
#include <set>

#include "apps/support/LoadedRepository.h"
#include "apps/support/ParseNoteText.h"
#include "host/application/Application.h"
#include "host/files/Paths.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "scene/BuildReport.h"
#include "scene/CharacterBuilder.h"
#include "tests/samples/RoughRepository.h"
#include "tests/support/LogStoreFixture.h"

namespace {

using ZORVEL::CharacterBuilder;
using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::DataContainer;
using ZORVEL::Selection2;

std::wstring idOf(const DataContainer* element) {
  bool found = false;
  return element->GetData(L"id", found);
}

std::wstring nameOf(const std::wstring& file) { return file.substr(file.rfind(L'\\') + 1); }

/// Wears everything that the sample repository offers, with the plug-in's own builder.
class EveryCombination : public support::LogStoreFixture {
 protected:
  void SetUp() override {
    LogStoreFixture::SetUp();
    host::Application::instance().reset();
    m_loaded.emplace(support::roughRepository());
    ASSERT_EQ(m_loaded->error(), "");
    EXPECT_TRUE(m_loaded->notes().empty()) << apps::lineOf(m_loaded->notes().front(), "");
  }
  void TearDown() override {
    host::Application::instance().reset();
    m_loaded.reset();
    LogStoreFixture::TearDown();
  }

  void wearEverything(const CharacterData& character, const DataContainer& cloth, const DataContainer& pose) {
    Selection2::SetCloth(idOf(&cloth).c_str());
    Selection2::SetPose(idOf(&pose).c_str());
    const DataContainer& styles = *cloth.GetChild(ZORVEL::MATERIAL);
    const int skins = character.GetCount(ZORVEL::SKINS);
    for (int i = 0; i < std::max(styles.GetChildCount(), skins); ++i) {
      Selection2::SetStyle(idOf(styles.GetChild(i % styles.GetChildCount())).c_str());
      Selection2::SetSkin(idOf(character.GetContainerElement(ZORVEL::SKINS, i % skins)).c_str());
      Selection2::ClearAssets();
      if (i == 0) addEveryAsset(character);
      build();
    }
  }

  /// Every asset that the window would offer, in every style.
  void addEveryAsset(const CharacterData& character) {
    for (int i = 0; i < character.GetCount(ZORVEL::CATEGORIES); ++i) {
      std::vector<DataContainer*> assets;
      character.GetAssetsForCategory(assets, character.GetContainerElement(ZORVEL::CATEGORIES, i));
      for (const DataContainer* asset : assets) {
        if (!asset->GetFastFlag(ZORVEL::FLAG_VALID)) {
          m_missing.insert(idOf(asset));
          continue;
        }
        for (int style = 0; style < asset->GetChildCount(); ++style) {
          Selection2::AddAsset(Data2::GetUnique(asset->GetChild(style)));
        }
        if (asset->GetChildCount() == 0) Selection2::AddAsset(Data2::GetUnique(asset));
        m_offered.insert(idOf(asset));
      }
    }
  }

  void build() {
    clearLog();
    host::Scene& scene = host::Application::instance().scene();
    ZORVEL::BuildReport report;
    ASSERT_NE(CharacterBuilder::BuildSelectedCharacter(report), nullptr);
    expectComplaints({});
    for (host::Node* node : scene.nodes()) {
      const auto* proxy = dynamic_cast<host::ProxyObject*>(node->GetObjectRef());
      if (proxy == nullptr) continue;
      if (!proxy->problem().empty()) m_missing.insert(nameOf(proxy->fileName()));
      EXPECT_NE(node->GetMtl(), nullptr) << node->GetName() << " in " << Selection2::GetPose();
      ++m_pieces;
    }
    host::Application::instance().reset();
  }

  std::set<std::wstring> m_missing;
  std::set<std::wstring> m_offered;
  int m_pieces = 0;

 private:
  std::optional<apps::LoadedRepository> m_loaded;
};

TEST_F(EveryCombination, OfClothingPoseStyleSkinAndAssetsHasItsMeshesAndMaterialsButThoseLeftOutOnPurpose) {
  for (int i = 0; i < Data2::GetCharacterCount(); ++i) {
    const CharacterData& character = *Data2::GetCharacter(i);
    Selection2::SetCharacter(idOf(&character).c_str());
    for (int cloth = 0; cloth < character.GetCount(ZORVEL::CLOTH); ++cloth) {
      const DataContainer& worn = *character.GetContainerElement(ZORVEL::CLOTH, cloth);
      if (!worn.GetFastFlag(ZORVEL::FLAG_VALID)) {
        m_missing.insert(idOf(&worn));
        continue;
      }
      for (int pose = 0; pose < character.GetCount(ZORVEL::POSES); ++pose) {
        wearEverything(character, worn, *character.GetContainerElement(ZORVEL::POSES, pose));
      }
    }
  }
  EXPECT_EQ(m_missing,
            (std::set<std::wstring>{L"anna_raincoat", L"bruno_hoodie_bruno_sitting.vrmesh", L"global_umbrella"}));
  EXPECT_GT(m_offered.size(), 50U);
  EXPECT_GT(m_pieces, 3000);
}

}  // namespace
