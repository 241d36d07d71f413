#include "model/Selection2.h"

#include "tests/model/ModelFixture.h"

namespace ZORVEL {

class Selection2Test : public ModelFixture {
 protected:
  static std::vector<int> chosen() {
    std::vector<int> assets;
    for (int i = 0; i < Selection2::GetAssetCount(); ++i) assets.push_back(Selection2::GetAsset(i));
    return assets;
  }
};

TEST_F(Selection2Test, AnEmptyChoiceIsNullExceptForTheCharacter) {
  EXPECT_STREQ(Selection2::GetCharacter(), L"");
  EXPECT_EQ(Selection2::GetCloth(), nullptr);
  Selection2::SetPose(L"p");
  EXPECT_STREQ(Selection2::GetPose(), L"p");
  Selection2::SetPose(nullptr);
  EXPECT_EQ(Selection2::GetPose(), nullptr);
  Selection2::SetSkin(L"");
  EXPECT_EQ(Selection2::GetSkin(), nullptr);
}

TEST_F(Selection2Test, ResetKeepsTheStyleAlone) {
  Selection2::SetCharacter(L"c");
  Selection2::SetCloth(L"k");
  Selection2::SetPose(L"p");
  Selection2::SetSkin(L"s");
  Selection2::SetStyle(L"st");
  Selection2::AddAsset(1010);
  Selection2::Reset();
  EXPECT_STREQ(Selection2::GetCharacter(), L"");
  EXPECT_EQ(Selection2::GetCloth(), nullptr);
  EXPECT_EQ(Selection2::GetPose(), nullptr);
  EXPECT_EQ(Selection2::GetSkin(), nullptr);
  EXPECT_EQ(Selection2::GetAssetCount(), 0);
  EXPECT_STREQ(Selection2::GetStyle(), L"st");
}

TEST_F(Selection2Test, AnAssetMayBeChosenTwiceAndIsRemovedOnceAtATime) {
  for (const int unique : {1010, 1020, 1010}) Selection2::AddAsset(unique);
  Selection2::RemoveAsset(1010);
  Selection2::RemoveAsset(7);
  EXPECT_EQ(chosen(), (std::vector<int>{1020, 1010}));
  EXPECT_TRUE(Selection2::CheckSelectedAsset(1010));
  EXPECT_FALSE(Selection2::CheckSelectedAsset(7));
  EXPECT_EQ(Selection2::GetAsset(2), 0);
  EXPECT_EQ(Selection2::GetAsset(-1), 0);
  expectComplaints({L"Selection2::GetAsset: index out of range!", L"Selection2::GetAsset: index out of range!"});
}

TEST_F(Selection2Test, RemovesACategoryWithWhatTheCharacterDoesNotKnow) {
  CharacterData& character = addCharacter();
  const DataContainer* bags = add(character, CATEGORIES, {{L"id", L"bags"}});
  add(character, CATEGORIES, {{L"id", L"hats"}});
  const int bag = Data2::GetUnique(add(character, ASSETS, {{L"category", L"bags"}}));
  const int hat = Data2::GetUnique(add(character, ASSETS, {{L"category", L"hats"}}));
  const int felt = Data2::GetUnique(character.AddMaterialToAsset(1));
  const int global = Data2::GetUnique(addGlobalAsset({{L"id", L"g"}}));
  const int lost = Data2::GetUnique(add(character, ASSETS, {{L"category", L"none"}}));
  for (const int unique : {felt, bag, global, hat}) Selection2::AddAsset(unique);

  EXPECT_EQ(Selection2::CountSelectedInCategory(bags, &character), 0);
  EXPECT_EQ(Selection2::CountSelectedInCategory(nullptr, &character), -1);
  EXPECT_EQ(Selection2::CountSelectedInCategory(bags, nullptr), -1);

  Selection2::RemoveAssetsOfCategory(bags, &character);
  EXPECT_EQ(chosen(), (std::vector<int>{felt, hat}));
  for (const int unique : {bag, lost}) Selection2::AddAsset(unique);
  Selection2::RemoveAssetsOfCategory(bags, &character);
  EXPECT_EQ(chosen(), (std::vector<int>{felt, hat, bag, lost})) << "one without a category stops everything";
}

}  // namespace ZORVEL
