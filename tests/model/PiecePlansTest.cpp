#include "model/PiecePlans.h"

#include "model/LibrarySearches.h"
#include "tests/model/ModelFixture.h"

namespace ZORVEL {

using Libraries = std::vector<std::wstring>;

class PiecePlansTest : public ModelFixture {
 protected:
  void SetUp() override {
    ModelFixture::SetUp();
    character_ = &addCharacter({{L"id", L"c"}, {L"folder", L"C:\\r\\\\anna"}});
    pose_ = add(*character_, POSES, {{L"id", L"p"}, {L"name", L"Standing"}, {L"folder", L"standing"}});
    global_ = addGlobalAsset({{L"id", L"g"}, {L"name", L"Bench"}, {L"folder", L"bench"}, {L"type", L"global"}});
  }
  PiecePlans plans() const { return {*character_, L"C:\\r\\"}; }
  DataContainer* addAsset(const wchar_t* id, const wchar_t* type) {
    return add(*character_, ASSETS, {{L"id", id}, {L"name", L"N"}, {L"folder", id}, {L"type", type}});
  }
  void addRow(const wchar_t* asset) { character_->AddAssetMatrixElement(L"p", asset, 1, 2, 3, 0, 0, 0); }
  PiecePlan mandatory(Attributes entry) {
    return plans().Mandatory(fill(character_->AddMandatoryElement(0), entry), L"p");
  }

  CharacterData* character_ = nullptr;
  DataContainer* pose_ = nullptr;
  DataContainer* global_ = nullptr;
};

const Libraries OWN = {L"C:\\r\\\\anna\\materials.mat", L"C:\\r\\\\anna\\props.mat"};

Libraries andOwn(const std::wstring& first) { return {first, OWN[0], OWN[1]}; }

void expectLeftOut(const PiecePlan& plan, OmissionReason reason, const wchar_t* subject) {
  EXPECT_FALSE(plan.canBeBuilt);
  EXPECT_EQ(plan.omission.reason, reason);
  EXPECT_EQ(plan.omission.subject, subject);
  EXPECT_EQ(plan.omission.element.id, plan.element.id);
  EXPECT_EQ(plan.meshFile, L"");
  EXPECT_EQ(plan.materialRecord, nullptr);
}

TEST_F(PiecePlansTest, BodyAndClothingAreWithoutAMaterialOnlyWhenNoneIsAskedFor) {
  DataContainer* skin = add(*character_, SKINS, {{L"id", L"s"}});
  DataContainer* cloth = add(*character_, CLOTH, {{L"id", L"k"}, {L"name", L"Coat"}, {L"folder", L"coat"}});
  DataContainer* style = fill(character_->AddMaterialToCloth(0), {{L"id", L"m"}});

  const PiecePlan body = plans().Body(*pose_, skin);
  EXPECT_EQ(body.meshFile, L"C:\\r\\\\anna\\standing\\pose.vrmesh");
  EXPECT_EQ(body.materialRecord, skin) << "it is asked for, with or without the field";
  EXPECT_EQ(body.element.materialId, L"s");
  EXPECT_EQ(body.libraries, andOwn(L"C:\\r\\\\anna\\skin\\skin.mat"));
  const PiecePlan coat = plans().Clothing(*cloth, style, *pose_);
  EXPECT_EQ(coat.meshFile, L"C:\\r\\\\anna\\coat\\k_p.vrmesh");
  EXPECT_EQ(coat.materialRecord, style);
  EXPECT_EQ(coat.libraries, andOwn(L"C:\\r\\\\anna\\coat\\materials.mat"));

  for (const PiecePlan& bare : {plans().Body(*pose_, nullptr), plans().Clothing(*cloth, nullptr, *pose_)}) {
    EXPECT_TRUE(bare.canBeBuilt);
    EXPECT_NE(bare.meshFile, L"");
    EXPECT_EQ(bare.materialRecord, nullptr);
    EXPECT_EQ(bare.libraries, Libraries());
  }
  DataContainer empty;
  expectLeftOut(plans().Body(empty, skin), OmissionReason::NoField, L"folder");
  expectLeftOut(plans().Clothing(*fill(&empty, {{L"folder", L"f"}}), style, *pose_), OmissionReason::NoField, L"name");
}

TEST_F(PiecePlansTest, AssetsGetAMaterialWhereTheyHaveAPlace) {
  DataContainer* bag = addAsset(L"bag", L"common");
  DataContainer* canvas = fill(character_->AddMaterialToAsset(0), {{L"id", L"canvas"}});
  DataContainer* scarf = addAsset(L"scarf", L"specific");
  const auto bench = [this] { return plans().Asset(ElementKind::SharedAsset, *global_, nullptr, L"p"); };

  EXPECT_EQ(bench().placing, PlacingState::NotListed);
  fill(addAsset(L"a", L"global"), {{L"globalID", L"g"}});
  for (const PiecePlan& unplaced : {bench(), plans().Asset(ElementKind::Asset, *bag, canvas, L"p")}) {
    EXPECT_TRUE(unplaced.canBeBuilt);
    EXPECT_NE(unplaced.meshFile, L"");
    EXPECT_EQ(unplaced.placing, PlacingState::NoRow);
    EXPECT_EQ(unplaced.materialRecord, nullptr);
    EXPECT_EQ(unplaced.libraries, Libraries());
  }
  addRow(L"a");
  addRow(L"bag");
  EXPECT_EQ(bench().row, character_->FindAssetMatrixElement(L"p", L"a"));
  EXPECT_EQ(bench().materialRecord, global_);
  EXPECT_EQ(bench().meshFile, L"C:\\r\\\\global_assets\\bench\\asset.vrmesh");
  EXPECT_EQ(bench().libraries,
            (Libraries{L"C:\\r\\\\global_assets\\bench\\materials.mat", L"C:\\r\\\\global_assets\\materials.mat"}));
  const PiecePlan ordinary = plans().Asset(ElementKind::Asset, *bag, canvas, L"p");
  EXPECT_EQ(ordinary.placing, PlacingState::ByRow);
  EXPECT_EQ(ordinary.materialRecord, canvas);
  EXPECT_EQ(ordinary.libraries, andOwn(L"C:\\r\\\\anna\\bag\\materials.mat"));
  const PiecePlan specific = plans().Asset(ElementKind::Asset, *scarf, nullptr, L"q");
  EXPECT_EQ(specific.meshFile, L"C:\\r\\\\anna\\scarf\\q.vrmesh");
  EXPECT_EQ(specific.placing, PlacingState::NotNeeded);
  EXPECT_EQ(specific.materialRecord, scarf);
}

TEST_F(PiecePlansTest, WhatAPoseAsksForIsTheAssetOrTheReasonWhyThereIsNone) {
  DataContainer* bag = addAsset(L"bag", L"common");
  fill(addAsset(L"a", L"global"), {{L"globalID", L"g"}});
  DataContainer* lost = addAsset(L"lost", L"global");
  expectLeftOut(mandatory({{L"name", L"N"}}), OmissionReason::NoField, L"id");
  expectLeftOut(mandatory({{L"id", L"x"}}), OmissionReason::UnknownId, L"x");
  expectLeftOut(mandatory({{L"id", L"lost"}}), OmissionReason::NoSharedRecord, L"");
  fill(lost, {{L"globalID", L"h"}});
  expectLeftOut(mandatory({{L"id", L"lost"}}), OmissionReason::NoSharedRecord, L"h");
  EXPECT_EQ(mandatory({{L"id", L"bag"}}).record, bag);
  EXPECT_EQ(mandatory({{L"id", L"a"}}).record, global_);

  DataContainer reference;
  fill(&reference, {{L"type", L"global"}, {L"globalID", L"h"}});
  expectLeftOut(plans().Asset(ElementKind::Asset, reference, nullptr, L"p"), OmissionReason::NoSharedRecord, L"h");
  expectLeftOut(plans().Asset(ElementKind::MandatoryAsset, reference, nullptr, L"p"), OmissionReason::NoField,
                L"folder");
}

TEST(LibrarySearchesTest, EndsWithTheFirstLibraryThatHoldsTheMaterial) {
  const Libraries files = {L"0", L"1", L"2"};
  const auto run = [&files](std::vector<LibraryState> states) {
    return LibrarySearches::Run(L"Blue", files, [states](const std::wstring& file, const wchar_t* name) {
      EXPECT_STREQ(name, L"Blue");
      return states.at(static_cast<std::size_t>(file[0] - L'0'));
    });
  };
  const MaterialResult held = run({LibraryState::NotLoaded, LibraryState::HoldsMaterial});
  EXPECT_EQ(held.state, MaterialState::FromLibrary);
  EXPECT_EQ(held.name, L"Blue");
  EXPECT_EQ(held.searches.size(), 2U);
  EXPECT_EQ(run({LibraryState::NameOfMap, LibraryState::WithoutName, LibraryState::HoldsMaterial}).state,
            MaterialState::FromLibrary);
  const MaterialResult map = run({LibraryState::WithoutName, LibraryState::NameOfMap, LibraryState::NotLoaded});
  EXPECT_EQ(map.state, MaterialState::NameOfMap);
  EXPECT_EQ(map.searches.size(), 3U);
  EXPECT_EQ(run({LibraryState::NotLoaded, LibraryState::WithoutName, LibraryState::WithoutName}).state,
            MaterialState::InNoLibrary);
  const MaterialResult unnamed = LibrarySearches::Run(nullptr, files, nullptr);
  EXPECT_EQ(unnamed.state, MaterialState::NoField);
  EXPECT_TRUE(unnamed.searches.empty());
}

}  // namespace ZORVEL
