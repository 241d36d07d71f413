#include "model/Data2.h"

#include "tests/model/ModelFixture.h"

namespace ZORVEL {

class Data2Test : public ModelFixture {};

TEST_F(Data2Test, IdsGoUpInTensAndStartAnewAfterClearEvenForRecordsThatSurviveIt) {
  DataContainer survivor;
  DataContainer other;
  EXPECT_EQ(Data2::GetUnique(&survivor), 1010);
  EXPECT_EQ(Data2::GetUnique(&survivor), 1010);
  EXPECT_EQ(Data2::NewUnique(), 1020);
  EXPECT_EQ(Data2::GetUnique(&other), 1030);
  other.SetData(L"id", L"o");
  EXPECT_STREQ(Data2::GetIdForUnique(1030), L"o");
  for (const int unbound : {0, -10, 1000, 1015, 1020, 1040, 2000000000}) {
    EXPECT_EQ(Data2::GetIdForUnique(unbound), nullptr);
  }

  Data2::Clear();
  EXPECT_EQ(Data2::GetIdForUnique(1030), nullptr);
  EXPECT_EQ(Data2::GetUnique(&other), 1010);
  EXPECT_EQ(Data2::GetUnique(&survivor), 1020);
}

TEST_F(Data2Test, AnIdOfADestroyedRecordNamesNothingAndIsNotUsedAgain) {
  DataContainer stale;
  EXPECT_EQ(Data2::GetUnique(&stale), 1010);
  Data2::Clear();
  DataContainer holder;
  holder.SetData(L"id", L"holder");
  EXPECT_EQ(Data2::GetUnique(&holder), 1010);
  {
    DataContainer temporary;
    temporary.SetData(L"id", L"t");
    EXPECT_EQ(Data2::GetUnique(&temporary), 1020);
    DataContainer staleToo;
  }
  EXPECT_EQ(Data2::GetIdForUnique(1020), nullptr);
  DataContainer next;
  EXPECT_EQ(Data2::GetUnique(&next), 1030);
  EXPECT_STREQ(Data2::GetIdForUnique(1010), L"holder") << "the stale record's old id is another's now";
}

TEST_F(Data2Test, RefusesNullAndIndexesOutsideInItsOwnWords) {
  Data2::AddCharacter();
  EXPECT_EQ(Data2::GetUnique(nullptr), 0);
  Data2::RegisterID(nullptr);
  EXPECT_EQ(Data2::GetCharacter(-1), nullptr);
  EXPECT_EQ(Data2::GetCharacter(1), nullptr);
  EXPECT_EQ(Data2::GetCharacter(nullptr), nullptr);
  EXPECT_EQ(Data2::GetGlobalAsset(0), nullptr);
  EXPECT_EQ(Data2::FindGlobalAssetById(nullptr), nullptr);
  EXPECT_EQ(Data2::AddMaterialToGlobalaAsset(nullptr), nullptr);
  expectComplaints({L"Data2::GetUnique: invalid argument", L"Data2::RegisterID: invalid argument",
                    L"Data2::GetCharacter: index out of range", L"Data2::GetCharacter: index out of range",
                    L"Data2::GetCharacter: invalid argument", L"Data2::GetGlobalAsset: index out of range",
                    L"Data2::GetCharacter: invalid argument",
                    L"Data2::AddMaterialToGlobalaAsset: could not get asset element"});
}

TEST_F(Data2Test, FindsCharactersByTheFirstMatchingId) {
  addCharacter();
  EXPECT_EQ(Data2::AddCharacter(L"Anna", L"c1", L"http://x"), 1);
  addCharacter({{L"id", L"c1"}});
  CharacterData* anna = Data2::GetCharacter(L"c1");
  EXPECT_EQ(anna, Data2::GetCharacter(1));
  bool found = false;
  EXPECT_STREQ(anna->GetData(L"name", found), L"Anna");
  EXPECT_STREQ(anna->GetData(L"url", found), L"http://x");
  EXPECT_STREQ(Data2::GetIdForUnique(1010), L"c1");
  EXPECT_EQ(Data2::GetCharacter(L"C1"), nullptr);
}

TEST_F(Data2Test, TellsGlobalAssetsFromTheirMaterials) {
  DataContainer* const asset = addGlobalAsset({{L"id", L"g"}, {L"type", L"Global"}});
  DataContainer* const oak = Data2::AddMaterialToGlobalaAsset(asset);
  EXPECT_FALSE(Data2::CheckAssetGlobal(asset));
  EXPECT_TRUE(Data2::IsGlobalAssetUnique(Data2::GetUnique(asset)));
  EXPECT_FALSE(Data2::IsGlobalAssetUnique(Data2::GetUnique(oak)));
  EXPECT_FALSE(Data2::IsGlobalAssetUnique(0));

  DataContainer* found = oak;
  DataContainer* material = oak;
  EXPECT_FALSE(Data2::GetGlobalAssetAndMaterial(5, found, material));
  EXPECT_EQ(material, oak);
  EXPECT_TRUE(Data2::GetGlobalAssetAndMaterial(Data2::GetUnique(asset), found, material));
  EXPECT_EQ(found, asset);
  EXPECT_EQ(material, nullptr);
  EXPECT_TRUE(Data2::GetGlobalAssetAndMaterial(Data2::GetUnique(oak), found, material));
  EXPECT_EQ(material, oak);
}

TEST_F(Data2Test, OnlySettingTheMarkToTrueValidates) {
  Data2::SetValidated(false);
  EXPECT_EQ(countLogged(L"validate data..."), 0);
  Data2::SetValidated(true);
  EXPECT_EQ(countLogged(L"validate data..."), 1);
  EXPECT_TRUE(Data2::IsValidated());
  Data2::Clear();
  EXPECT_FALSE(Data2::IsValidated());
}

}  // namespace ZORVEL
