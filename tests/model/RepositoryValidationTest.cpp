#include "model/RepositoryValidation.h"

#include "tests/repository/RepositoryFixture.h"

namespace ZORVEL {

class RepositoryValidationTest : public RepositoryFixture {
 protected:
  CharacterData& characterIn(const wchar_t* folder) {
    const std::wstring path = root_.wide() + L"\\" + folder;
    return addCharacter({{L"folder", path.c_str()}});
  }
  static bool valid(const DataContainer* record) { return record->GetFastFlag(FLAG_VALID); }
};

TEST_F(RepositoryValidationTest, MarksWhatHasItsFolder) {
  for (const char* folder : {"anna/summer", "anna/standing", "anna/bag", "global_assets/bench"})
    root_.makeFolder(folder);
  root_.write("anna/file", "");
  CharacterData& anna = characterIn(L"anna");
  const DataContainer* summer = add(anna, CLOTH, {{L"folder", L"Summer"}});
  const DataContainer* file = add(anna, CLOTH, {{L"folder", L"file"}});
  const DataContainer* bare = add(anna, POSES, {});
  const DataContainer* standing = add(anna, POSES, {{L"folder", L"standing"}});
  const DataContainer* bag = add(anna, ASSETS, {{L"folder", L"bag"}});
  const DataContainer* skin = add(anna, SKINS, {{L"folder", L"bag"}});
  const DataContainer* bench = addGlobalAsset({{L"id", L"g1"}, {L"folder", L"bench"}});
  const DataContainer* lost = addGlobalAsset({{L"id", L"g2"}, {L"folder", L"lost"}});
  const DataContainer* homeless = addGlobalAsset({{L"id", L"g3"}});
  Data2::SetValidated(true);
  for (const DataContainer* record : std::initializer_list<const DataContainer*>{&anna, summer, standing, bag, bench}) {
    EXPECT_TRUE(valid(record));
  }
  for (const DataContainer* record : {file, bare, skin, lost, homeless}) EXPECT_FALSE(valid(record));
  EXPECT_EQ(countLogged(L"set global asset invalid..."), 2);
  EXPECT_EQ(countLogged(L"set element invalid..."), 2);

  std::filesystem::remove(root_.path() / "anna/summer");
  Data2::SetValidated(true);
  EXPECT_FALSE(valid(summer)) << "marks are renewed by every run";
}

TEST_F(RepositoryValidationTest, AnAssetTakesOverTheMarkOfItsGlobalAssetOrKeepsItsOwn) {
  root_.makeFolder("anna/bench");
  root_.makeFolder("global_assets/bench");
  CharacterData& anna = characterIn(L"anna");
  DataContainer* const bench = addGlobalAsset({{L"id", L"g"}, {L"folder", L"bench"}});
  const DataContainer* asset = add(anna, ASSETS, {{L"type", L"global"}, {L"globalID", L"g"}, {L"folder", L"none"}});
  DataContainer* const orphan = add(anna, ASSETS, {{L"type", L"global"}, {L"globalID", L"x"}, {L"folder", L"bench"}});
  Data2::ValidateAll();
  EXPECT_TRUE(valid(asset));
  EXPECT_FALSE(valid(orphan));

  bench->SetData(L"folder", L"gone");
  orphan->SetFastFlag(FLAG_VALID, true);
  Data2::ValidateAll();
  EXPECT_FALSE(valid(asset));
  EXPECT_TRUE(valid(orphan));
}

TEST_F(RepositoryValidationTest, TheElementsOfAnInvalidCharacterKeepTheirMarks) {
  CharacterData& lost = characterIn(L"lost");
  CharacterData& homeless = addCharacter({});
  DataContainer* const pose = add(lost, POSES, {{L"folder", L"none"}});
  pose->SetFastFlag(FLAG_VALID, true);
  homeless.SetFastFlag(FLAG_VALID, true);
  Data2::ValidateAll();
  EXPECT_FALSE(valid(&lost));
  EXPECT_FALSE(valid(&homeless));
  EXPECT_TRUE(valid(pose));
  RepositoryValidation::ValidateCharacter(nullptr);
  EXPECT_FALSE(RepositoryValidation::ValidateElement(pose, nullptr));
  EXPECT_FALSE(RepositoryValidation::ValidateElement(nullptr, L"x"));
  EXPECT_TRUE(valid(pose));
}

}  // namespace ZORVEL
