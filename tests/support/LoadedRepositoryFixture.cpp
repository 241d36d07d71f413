#include "tests/support/LoadedRepositoryFixture.h"

#include "host/application/Application.h"
#include "host/services/Listener.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "scene/CharacterBuilder.h"

namespace support {

using ZORVEL::CharacterData;
using ZORVEL::Data2;
using ZORVEL::Selection2;

void LoadedRepositoryFixture::SetUp() {
  LogStoreFixture::SetUp();
  host::Application::instance().reset();
  host::Application::instance().listener().clear();
  loaded_.emplace(repository_.folder().path());
  ASSERT_EQ(loaded_->error(), "");
  Selection2::SetCharacter(L"c1");
  Selection2::SetCloth(L"k1");
  Selection2::SetPose(L"p1");
  Selection2::SetSkin(L"s1");
  Selection2::SetStyle(L"k1m1");
  clearLog();
}

void LoadedRepositoryFixture::reload() {
  loaded_->read();
  ASSERT_EQ(loaded_->error(), "");
}

INode* LoadedRepositoryFixture::build() { return ZORVEL::CharacterBuilder::BuildSelectedCharacter(report_); }

void LoadedRepositoryFixture::TearDown() {
  host::Application::instance().reset();
  loaded_.reset();
  LogStoreFixture::TearDown();
}

void LoadedRepositoryFixture::addAsset(const wchar_t* id, const wchar_t* material) {
  const ZORVEL::DataContainer* asset = Data2::FindGlobalAssetById(id);
  const CharacterData* character = Data2::GetCharacter(L"c1");
  for (int i = 0; asset == nullptr && i < character->GetCount(ZORVEL::ASSETS); ++i) {
    const ZORVEL::DataContainer* one = character->GetContainerElement(ZORVEL::ASSETS, i);
    bool found = false;
    if (std::wstring(one->GetData(L"id", found)) == id) asset = one;
  }
  ASSERT_NE(asset, nullptr);
  if (material != nullptr) asset = CharacterData::FindElementById(asset, material);
  Selection2::AddAsset(Data2::GetUnique(asset));
}

}  // namespace support
