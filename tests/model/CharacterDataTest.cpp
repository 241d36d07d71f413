#include "model/CharacterData.h"

#include <cmath>

#include "tests/model/ModelFixture.h"
#include "tests/support/TemporaryFolder.h"

namespace ZORVEL {

class CharacterDataTest : public ModelFixture {
 protected:
  std::vector<DataContainer*> offered(const DataContainer* category) const {
    std::vector<DataContainer*> assets;
    character_.GetAssetsForCategory(assets, category);
    return assets;
  }

  CharacterData character_;
};

TEST_F(CharacterDataTest, ANewClothHasItsThreeGroupsAndAnUnknownListTakesNothing) {
  EXPECT_EQ(character_.AddContainerElement(CLOTH), 0);
  EXPECT_EQ(character_.GetContainerElement(CLOTH, 0)->GetChildCount(), 3);
  EXPECT_EQ(character_.AddContainerElement(static_cast<CONTAINER>(7)), -1);
  EXPECT_EQ(character_.GetCount(static_cast<CONTAINER>(-1)), 0);
  EXPECT_EQ(character_.GetContainerElement(static_cast<CONTAINER>(5), 0), nullptr);
}

TEST_F(CharacterDataTest, NamesOfListsAreExtended) {
  character_.SetContainerName(POSES, L"A");
  character_.SetContainerName(POSES, L"B");
  character_.SetContainerName(POSES, nullptr);
  character_.SetContainerName(CATEGORIES, L"C");
  EXPECT_STREQ(character_.GetContainerName(POSES), L"AB");
  EXPECT_STREQ(character_.GetContainerName(SKINS), L"");
  EXPECT_EQ(character_.GetContainerName(CATEGORIES), nullptr);
}

TEST_F(CharacterDataTest, ChildrenOfElementsThatAreNotThereAreRefusedInTheirOwnWords) {
  character_.AddClothElement(L"k", L"n", L"f", L"u");  // has no groups
  EXPECT_EQ(character_.AddChildToClothContainer(1, MATERIAL), nullptr);
  EXPECT_EQ(character_.AddChildToClothContainer(-1, MATERIAL), nullptr);
  EXPECT_EQ(character_.AddMandatoryElement(0), nullptr);
  EXPECT_EQ(character_.AddMandatoryElement(-1), nullptr);
  EXPECT_EQ(character_.AddMaterialToAsset(0), nullptr);
  EXPECT_EQ(character_.AddMaterialToCloth(1), nullptr);
  EXPECT_EQ(character_.GetClothChildCount(1, MATERIAL), -1);
  expectComplaints({L"CharacterData::AddChildToClothContainer: index out of range",
                    L"CharacterData::AddChildToClothContainer: could not get cloth element",
                    L"CharacterData::AddMandatoryElement: index out of range",
                    L"CharacterData::AddMandatoryElement: could not get pose element",
                    L"CharacterData::AddMaterialToAsset: index out of range",
                    L"CharacterData::AddMaterialToCloth: index out of range",
                    L"CharacterData::GetClothChildCount: index out of range"});
  EXPECT_EQ(character_.AddChildToClothContainer(0, SELECT), nullptr);
  expectLogged(DEBUG_ERROR, L"GetChild: index out of range");
  expectLogged(DEBUG_ERROR, L"CharacterData::AddChildToClothContainer: could not get subContainerDC");
  EXPECT_EQ(character_.GetStyle(L"k", L"s"), nullptr);
}

TEST_F(CharacterDataTest, TheBoundOfClothChildrenIsTheWrongWayRound) {
  character_.AddContainerElement(CLOTH);
  ASSERT_NE(character_.AddMaterialToCloth(0), nullptr);
  EXPECT_EQ(character_.GetClothChildCount(0, MATERIAL), 1);
  EXPECT_EQ(character_.GetClothChildElement(0, MATERIAL, 0), nullptr);
  EXPECT_EQ(character_.GetClothChildElement(0, MATERIAL, 1), nullptr);
  EXPECT_EQ(character_.GetClothChildElement(0, MATERIAL, 2), nullptr);
  expectComplaints({L"CharacterData::GetClothChildElement: index out of range",
                    L"CharacterData::GetClothChildElement: index out of range", L"GetChild: index out of range"});
}

TEST_F(CharacterDataTest, MatrixRowsNeedBothIdsAndReadNumbersLeniently) {
  DataContainer row;
  character_.AddAssetMatrixElement(nullptr);
  fill(&row, {{L"poseID", L"p"},
              {L"xpos", L"12.5cm"},
              {L"ypos", L" -1e2"},
              {L"zpos", L"-1e999"},
              {L"xrot", L"1e999"},
              {L"yrot", L"1,5"}});
  character_.AddAssetMatrixElement(&row);
  EXPECT_EQ(character_.FindAssetMatrixElement(L"p", L"a"), nullptr);
  clearLog();
  row.SetData(L"assetID", L"a");
  character_.AddAssetMatrixElement(&row);
  expectComplaints({L"Missing datafield:", L"zrot"});
  const AssetMatrixElement* found = character_.FindAssetMatrixElement(L"p", L"a");
  ASSERT_NE(found, nullptr);
  EXPECT_EQ(found->xpos, 12.5F);
  EXPECT_EQ(found->ypos, -100.0F);
  EXPECT_EQ(found->zpos, -HUGE_VALF);
  EXPECT_EQ(found->xrot, HUGE_VALF);
  EXPECT_EQ(found->yrot, 1.0F);
  EXPECT_EQ(found->zrot, 0.0F);
  EXPECT_EQ(character_.FindAssetMatrixElement(nullptr, L"a"), nullptr);
  character_.AddAssetMatrixElement(L"p", L"a", 1, 0, 0, 0, 0, 0);
  character_.AddAssetMatrixElement(L"p", L"A", 2, 0, 0, 0, 0, 0);
  EXPECT_NE(character_.FindAssetMatrixElement(L"p", L"A"), nullptr) << "added after the first lookup";
  EXPECT_EQ(character_.FindAssetMatrixElement(L"p", L"a")->xpos, 12.5F) << "the first of several counts";
}

TEST_F(CharacterDataTest, SortsClothsByCodeUnitsAndKeepsEqualOnesInOrder) {
  const wchar_t* const names[][2] = {{L"1", L"b"}, {L"2", L"B"},      {L"3", L"a"},
                                     {L"4", L"B"}, {L"5", L"\uE000"}, {L"6", L"\U0001F600"}};
  for (const auto& name : names) add(character_, CLOTH, {{L"id", name[0]}, {L"name", name[1]}});
  add(character_, CLOTH, {{L"id", L"unnamed"}});
  character_.SortClothsAlphabetically();
  std::wstring order;
  for (int i = 0; i < character_.GetCount(CLOTH); ++i) {
    bool found = false;
    order += character_.GetContainerElement(CLOTH, i)->GetData(L"id", found);
  }
  EXPECT_EQ(order, L"unnamed243165");
}

TEST_F(CharacterDataTest, ClothsWithoutAPreviewPictureDisappearAndTheirIdsNameNothing) {
  const support::TemporaryFolder folder;
  folder.write("previews/preview_k1.png", "");
  folder.makeFolder("previews/preview_k2.png");
  folder.write("previews/preview_K3.PNG", "");
  character_.SetData(L"folder", folder.wide().c_str());
  const DataContainer* cloths[] = {add(character_, CLOTH, {{L"id", L"k3"}}), add(character_, CLOTH, {{L"id", L"k2"}}),
                                   add(character_, CLOTH, {{L"id", L"k1"}}), add(character_, CLOTH, {})};
  const int removed = Data2::GetUnique(cloths[1]);
  character_.ValidateCloths();
  ASSERT_EQ(character_.GetCount(CLOTH), 2);
  EXPECT_EQ(character_.GetContainerElement(CLOTH, 0), cloths[0]);
  EXPECT_EQ(character_.GetContainerElement(CLOTH, 1), cloths[2]);
  EXPECT_EQ(Data2::GetIdForUnique(removed), nullptr);
  EXPECT_EQ(Data2::GetUnique(cloths[0]), removed + 10);
}

TEST_F(CharacterDataTest, LookupsSkipElementsWithoutAnId) {
  add(character_, SKINS, {{L"name", L"nameless"}});
  const DataContainer* skin = add(character_, SKINS, {{L"id", L"s"}});
  EXPECT_EQ(character_.GetSkin(L"s"), skin);
  expectComplaints({L"Missing datafield:", L"id"});
  EXPECT_EQ(character_.GetSkin(nullptr), nullptr);
  EXPECT_EQ(CharacterData::FindElementById(nullptr, L"s"), nullptr);
  EXPECT_EQ(character_.GetCategory(nullptr), nullptr);
  EXPECT_EQ(character_.GetCategory(skin), nullptr);
  expectComplaints({L"CharacterData::GetCategory: invalid asset"});
}

TEST_F(CharacterDataTest, OffersAssetsByTypeMatrixAndExclusion) {
  const DataContainer* category = add(character_, CATEGORIES, {{L"id", L"t"}});
  DataContainer* const global = addGlobalAsset({{L"id", L"g"}});
  DataContainer* const specific =
      add(character_, ASSETS, {{L"id", L"a1"}, {L"type", L"specific"}, {L"category", L"t"}});
  add(character_, ASSETS, {{L"id", L"a2"}, {L"type", L"common"}, {L"category", L"t"}});
  add(character_, ASSETS, {{L"id", L"a3"}, {L"type", L"global"}, {L"globalID", L"g"}, {L"category", L"t"}});
  DataContainer* const orphan =
      add(character_, ASSETS, {{L"id", L"a4"}, {L"type", L"global"}, {L"globalID", L"none"}, {L"category", L"t"}});
  add(character_, ASSETS, {{L"id", L"a5"}, {L"type", L"specific"}});
  add(character_, ASSETS, {{L"type", L"common"}, {L"category", L"t"}});
  Selection2::SetPose(L"p");

  EXPECT_EQ(offered(category), (std::vector<DataContainer*>{specific, orphan}));
  EXPECT_EQ(countLogged(L"CharacterData::GetAssetsForCategory found no matrix for "), 3);

  character_.AddAssetMatrixElement(L"p", L"a3", 0, 0, 0, 0, 0, 0);
  EXPECT_EQ(offered(category), (std::vector<DataContainer*>{specific, global, orphan}));
  bool found = false;
  EXPECT_STREQ(global->GetData(L"local_asset_id", found), L"a3");

  add(character_, CLOTH, {{L"id", L"k"}});
  for (const wchar_t* excluded : {L"a1", L"a3"}) {
    fill(character_.AddChildToClothContainer(0, EXCLUDE), {{L"id", excluded}});
  }
  Selection2::SetCloth(L"k");
  EXPECT_EQ(offered(category), (std::vector<DataContainer*>{orphan}));
  EXPECT_TRUE(offered(nullptr).empty());
}

TEST_F(CharacterDataTest, TheSelectedClothChoosesAssetsAndTheirMaterials) {
  DataContainer asset;
  DataContainer material;
  fill(&asset, {{L"id", L"g"}, {L"local_asset_id", L"a"}});
  fill(&material, {{L"id", L"m"}});
  EXPECT_FALSE(character_.CheckAssetStyleForClothSelection(&asset, nullptr));
  add(character_, CLOTH, {{L"id", L"k"}});
  Selection2::SetCloth(L"k");
  EXPECT_FALSE(character_.CheckAssetStyleForClothSelection(&asset, nullptr));
  character_.AddChildToClothContainer(0, SELECT);  // names no asset
  fill(character_.AddChildToClothContainer(0, SELECT), {{L"asset_id", L"a"}});
  EXPECT_TRUE(character_.CheckAssetStyleForClothSelection(&asset, nullptr));
  EXPECT_FALSE(character_.CheckAssetStyleForClothSelection(&asset, &material));
  fill(character_.AddChildToClothContainer(0, SELECT), {{L"asset_id", L"a"}, {L"material_id", L"m"}});
  EXPECT_TRUE(character_.CheckAssetStyleForClothSelection(&asset, &material));
  EXPECT_FALSE(character_.CheckAssetStyleForClothSelection(nullptr, &material));
}

TEST_F(CharacterDataTest, ASelectEntryFindsWhatTheClothWouldChoose) {
  addGlobalAsset({{L"id", L"g"}});
  fill(Data2::AddMaterialToGlobalaAsset(Data2::GetGlobalAsset(0)), {{L"id", L"gm"}});
  add(character_, ASSETS, {{L"id", L"plain"}});
  add(character_, ASSETS, {{L"id", L"ref"}, {L"type", L"global"}, {L"globalID", L"g"}});
  add(character_, ASSETS, {{L"id", L"lost"}, {L"type", L"global"}, {L"globalID", L"h"}});
  add(character_, ASSETS, {{L"id", L"bag"}});
  fill(character_.AddMaterialToAsset(3), {{L"id", L"m"}});
  const auto finds = [this](Attributes entry) {
    DataContainer record;
    return character_.FindsSelected(fill(&record, entry));
  };
  EXPECT_TRUE(finds({{L"asset_id", L"plain"}, {L"material_id", L"any"}}));
  EXPECT_TRUE(finds({{L"asset_id", L"lost"}}));
  EXPECT_TRUE(finds({{L"asset_id", L"bag"}, {L"material_id", L"m"}}));
  EXPECT_TRUE(finds({{L"asset_id", L"ref"}, {L"material_id", L"gm"}}));
  EXPECT_FALSE(finds({{L"asset_id", L"bag"}})) << "it is offered once for each material";
  EXPECT_FALSE(finds({{L"asset_id", L"ref"}, {L"material_id", L"m"}}));
  EXPECT_FALSE(finds({{L"asset_id", L"g"}, {L"material_id", L"gm"}}));
  EXPECT_FALSE(finds({{L"material_id", L"m"}}));
  EXPECT_FALSE(character_.FindsSelected(nullptr));
  expectComplaints({});
}

TEST_F(CharacterDataTest, GlobalAssetsAreReachedThroughTheCharactersOwn) {
  DataContainer* const global = addGlobalAsset({{L"id", L"g"}});
  DataContainer* const category = add(character_, CATEGORIES, {{L"id", L"t"}});
  add(character_, ASSETS, {{L"id", L"other"}, {L"type", L"global"}});
  add(character_, ASSETS, {{L"id", L"own"}, {L"type", L"common"}, {L"globalID", L"g"}});
  DataContainer* const local =
      add(character_, ASSETS, {{L"id", L"a"}, {L"type", L"global"}, {L"globalID", L"g"}, {L"category", L"t"}});
  DataContainer* const plain = add(character_, ASSETS, {{L"id", L"b"}});
  DataContainer reference;
  EXPECT_EQ(character_.ResolveAsset(&reference), nullptr);
  EXPECT_EQ(character_.ResolveAsset(fill(&reference, {{L"id", L"a"}})), global);
  EXPECT_EQ(character_.ResolveAsset(fill(&reference, {{L"id", L"b"}})), plain);
  EXPECT_EQ(character_.ResolveAsset(fill(&reference, {{L"id", L"other"}})), nullptr);
  EXPECT_EQ(character_.ResolveAsset(fill(&reference, {{L"id", L"none"}})), nullptr);
  EXPECT_EQ(character_.FindLocalAssetForGlobal(global), local);
  EXPECT_EQ(character_.GetCategoryForGlobalAsset(global), category);
  EXPECT_EQ(character_.GetCategoryForGlobalAsset(nullptr), nullptr);
}

}  // namespace ZORVEL
