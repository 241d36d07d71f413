#include "repository/NetXMLParser2.h"

#include "repository/Parser2.h"
#include "repository/XMLParser2.h"
#include "tests/repository/RepositoryFixture.h"

namespace ZORVEL {

class NetXMLParser2Test : public RepositoryFixture {
 protected:
  bool parse(const std::string& xml) {
    writeDescription(xml);
    return Parser2::ParseRepository(root_.wide().c_str());
  }
  static bool storeIsEmpty() { return Data2::GetCharacterCount() == 0 && Data2::GetGlobalAssetCount() == 0; }
};

TEST_F(NetXMLParser2Test, RefusesARepositoryWithoutAReadableDescription) {
  EXPECT_FALSE(Parser2::ParseRepository(nullptr));
  EXPECT_FALSE(XMLParser2::ParseXML(nullptr));
  expectComplaints({L"Parser2::ParseRepository invalid argument", L"ParseRepositoryXML: invalid argument"});

  const std::wstring root = root_.wide();
  EXPECT_FALSE(Parser2::ParseRepository(root.c_str()));
  root_.makeFolder("zorvel.xml");
  EXPECT_FALSE(Parser2::ParseRepository(root.c_str()));
  EXPECT_EQ(countLogged(L"ParseRepositoryXML: XML file \"zorvel.xml\" does not exist in this folder:"), 2);
  EXPECT_EQ(countLogged(root), 6) << "named by the driver, by the reader and as the folder without the file";
  std::filesystem::remove(root_.path() / "zorvel.xml");

  EXPECT_FALSE(parse(""));
  EXPECT_FALSE(parse("<zorvel><globalAssets><asset id='g'/></globalAssets>"));
  EXPECT_FALSE(parse("<zorvel><globalAssets><asset id='g' id='h'/></globalAssets></zorvel>"));
  EXPECT_EQ(countLogged(L"ParseRepositoryXML: invalid character.xml"), 3);
  EXPECT_FALSE(parse("<Zorvel><globalAssets><asset/></globalAssets></Zorvel>"));
  EXPECT_FALSE(parse("<zorvel xmlns='urn:x'><globalAssets><asset/></globalAssets></zorvel>"));
  EXPECT_FALSE(parse("<z:zorvel xmlns:z='urn:x'><globalAssets><asset/></globalAssets></z:zorvel>"));
  EXPECT_FALSE(parse("<!DOCTYPE zorvel [<!ATTLIST zorvel xmlns CDATA 'urn:x'>]><zorvel/>"));
  EXPECT_EQ(countLogged(L"ParseRepositoryXML: invalid XML structure (zorvel)"), 4);
  EXPECT_TRUE(storeIsEmpty());
  EXPECT_TRUE(parse("<zorvel/>"));
  EXPECT_TRUE(parse("<zorvel xmlns='' xmlns:z='urn:x'/>"));
  EXPECT_TRUE(storeIsEmpty());
}

TEST_F(NetXMLParser2Test, RefusesCharactersOneByOneInOrder) {
  root_.makeFolder("nothing");
  root_.write("file/previews", "");
  root_.makeFolder("noskin/previews");
  makeCharacterFolder("good");
  const bool parsed = parse(
      "<zorvel><character/><character id='x'/><character folder='nothing'/><character folder='file'/>"
      "<character folder='noskin'><skins name='never read'/></character><Character folder='good'/><other/>"
      "<character folder='good'/><character folder='good'/></zorvel>");
  EXPECT_TRUE(parsed);
  EXPECT_EQ(Data2::GetCharacterCount(), 2);
  EXPECT_EQ(countLogged(L"ParseCharacter: invalid XML structure (folder)"), 1);
  EXPECT_EQ(countLogged(L"ParseCharacter: subfolder \"previews\" does not exist"), 2);
  EXPECT_EQ(countLogged(L"ParseCharacter: subfolder \"skin\" does not exist"), 1);
  EXPECT_EQ(countLogged(L"handle skins"), 0);
  EXPECT_EQ(text(Data2::GetCharacter(0), L"folder"), root_.wide() + L"\\good");
  EXPECT_FALSE(NetXMLParser2::ParseCharacter(nullptr, L"x"));
  EXPECT_FALSE(NetXMLParser2::ParseRepositoryElement(nullptr, L"x"));
  EXPECT_FALSE(NetXMLParser2::ParseGlobalAssets(nullptr));
  EXPECT_FALSE(NetXMLParser2::ParseGlobalAsset(nullptr));
}

TEST_F(NetXMLParser2Test, ReadsEveryKindOfElementAndNumbersThemInDocumentOrder) {
  makeCharacterFolder("anna");
  root_.makeFolder("anna/summer");
  root_.write("anna/previews/preview_k1.png", "");
  root_.write("anna/previews/preview_k2.png", "");
  ASSERT_TRUE(parse(R"(<zorvel>
    <globalAssets name='x'><asset id='g1'><!-- no record --><anything id='g1m'/><?no record?></asset><other/></globalAssets>
    <character id='c1' name='Anna &amp; Co' folder='anna'>
      <skins name='Skin'><skin id='s1'/><other id='no'/></skins>
      <cloth name='Clothing'>
        <clothing id='k1' name='Winter' folder='winter'><material id='m1'/><other/><exclude id='a1'/><select asset_id='a1'/></clothing>
        <clothing id='gone' name='Gone' folder='summer'><material id='gm'/></clothing>
        <clothing id='k2' name='Summer' folder='summer'/>
      </cloth>
      <poses name='Pose'><pose id='p1'>text<asset id='p1a'/><!-- x --></pose></poses>
      <unknown><skin id='no'/></unknown>
      <AssetMatrix><matrix poseID='p1' assetID='a1' xpos='1.5' ypos='0' zpos='0' xrot='0' yrot='0' zrot='-90'/><matrix/></AssetMatrix>
      <categories name='no'><category id='t1'/></categories>
      <assets><asset id='a1'><material id='a1m'/><other id='a1n'/></asset></assets>
    </character></zorvel>)"));

  const CharacterData* anna = Data2::GetCharacter(L"c1");
  ASSERT_NE(anna, nullptr);
  EXPECT_EQ(text(anna, L"name"), L"Anna & Co");
  EXPECT_STREQ(anna->GetContainerName(SKINS), L"Skin");
  EXPECT_STREQ(anna->GetContainerName(CLOTH), L"Clothing");
  EXPECT_STREQ(anna->GetContainerName(POSES), L"Pose");
  ASSERT_EQ(anna->GetCount(CLOTH), 2);
  EXPECT_EQ(text(anna->GetContainerElement(CLOTH, 0), L"available"), L"available") << "sorted: Summer comes first";
  EXPECT_EQ(text(anna->GetContainerElement(CLOTH, 1), L"available"), L"notavailable");
  for (const CLOTH_CHILD group : {MATERIAL, EXCLUDE, SELECT}) EXPECT_EQ(anna->GetClothChildCount(1, group), 1);
  EXPECT_EQ(anna->GetPose(L"p1")->GetChildCount(), 1);
  EXPECT_EQ(anna->FindAssetMatrixElement(L"p1", L"a1")->zrot, -90.0F);
  EXPECT_EQ(anna->GetContainerElement(ASSETS, 0)->GetChildCount(), 2);
  ASSERT_EQ(Data2::GetGlobalAssetCount(), 1);
  EXPECT_EQ(Data2::GetGlobalAsset(0)->GetChildCount(), 1);

  std::wstring ids;
  for (int unique = 1010; unique <= 1190; unique += 10) {
    const wchar_t* id = Data2::GetIdForUnique(unique);
    ids += std::wstring(id ? id : L"-") + L" ";
  }
  EXPECT_EQ(ids, L"g1 g1m c1 s1 k1 m1 a1 - - - k2 p1 p1a - - t1 a1 a1m a1n ");
  expectLogged(DEBUG_WARNING, L"poseID");
}

TEST_F(NetXMLParser2Test, ReadsARepositoryMadeOnWindows) {
  const std::u16string xml =
      u"<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<zorvel>\r\n<character id=\"c1\" "
      u"folder=\"People\\Z\u00DCRI\\\">\r\n"
      u"<cloth><clothing id=\"K1\" folder=\"Sommer\\Blau\"/></cloth></character></zorvel>\r\n";
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : xml) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  root_.write("ZORVEL.XML", bytes);
  makeCharacterFolder("people/z\xC3\xBCri");
  root_.makeFolder("people/z\xC3\xBCri/SOMMER/blau");
  root_.write("people/z\xC3\xBCri/previews/Preview_k1.PNG", "");
  // A root chosen in a file dialog ends in a separator; the doubled one is kept in texts and does no harm on disk.
  const std::wstring root = root_.wide() + L"\\";
  Settings::StorePath(root.c_str());
  ASSERT_TRUE(Parser2::ParseRepository(root.c_str()));
  const CharacterData* character = Data2::GetCharacter(L"c1");
  ASSERT_NE(character, nullptr);
  EXPECT_EQ(text(character, L"folder"), root + L"\\People\\Z\u00DCRI\\");
  ASSERT_EQ(character->GetCount(CLOTH), 1);
  EXPECT_EQ(text(character->GetCloth(L"K1"), L"available"), L"available");
  Data2::SetValidated(true);
  EXPECT_TRUE(character->GetCloth(L"K1")->GetFastFlag(FLAG_VALID));
}

TEST_F(NetXMLParser2Test, RecordsWithoutTheirUsualFieldsDoNoHarm) {
  makeCharacterFolder("anna");
  root_.write("anna/previews/preview_.png", "");
  ASSERT_TRUE(
      parse("<zorvel><globalAssets><asset><m/></asset></globalAssets><character folder='anna'><skins><skin/></skins>"
            "<cloth><clothing><select/><exclude/><material/></clothing><clothing name=''/></cloth>"
            "<poses><pose/></poses><categories><category/></categories><assets><asset/></assets>"
            "<AssetMatrix><matrix/></AssetMatrix></character></zorvel>"));
  CharacterData* character = Data2::GetCharacter(0);
  ASSERT_EQ(character->GetCount(CLOTH), 2);
  EXPECT_EQ(text(character->GetContainerElement(CLOTH, 0), L"available"), L"available")
      << "without a folder the character's own is looked at";
  Data2::SetValidated(true);
  const DataContainer* asset = character->GetContainerElement(ASSETS, 0);
  EXPECT_EQ(character->ResolveAsset(asset), nullptr);
  EXPECT_FALSE(character->IsAssetExcludedByCloth(character->GetContainerElement(CLOTH, 0), asset));
}

}  // namespace ZORVEL
