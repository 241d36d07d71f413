#include "repository/ParseObserver.h"

#include "model/Fields.h"
#include "repository/Parser2.h"
#include "repository/XmlDocument.h"
#include "tests/repository/RepositoryFixture.h"

namespace ZORVEL {

/// Keeps what it is told as one text each.
class ParseListener : public ParseObserver {
 public:
  void Noted(const ParseNote& note) override {
    notes.emplace_back(note.kind, place(note.line, note.column) + L" " + note.element + L"|" + note.name + L"|" +
                                      note.text + L"|" + note.path);
  }
  void DocumentRead(const std::shared_ptr<const XmlDocument>& read) override { document = read; }
  void RecordRead(const DataContainer& record, const XmlElement& element) override {
    const wchar_t* id = Fields::OptionalText(&record, L"id");
    records.push_back(place(element.line, element.column) + L" " + (id ? id : L"-"));
  }

  std::vector<std::pair<ParseNoteKind, std::wstring>> notes;
  std::vector<std::wstring> records;
  std::shared_ptr<const XmlDocument> document;

 private:
  static std::wstring place(int line, int column) { return std::to_wstring(line) + L":" + std::to_wstring(column); }
};

class ParseObserverTest : public RepositoryFixture {
 protected:
  ParseListener listen(const std::string& xml) {
    writeDescription(xml);
    return listen();
  }
  ParseListener listen() {
    Data2::Clear();
    ParseListener listener;
    const ObservedParsing observed(listener);
    Parser2::ParseRepository(root_.wide().c_str());
    return listener;
  }
  std::wstring path(const wchar_t* below) const { return root_.wide() + below; }

  using Kind = ParseNoteKind;
  using Texts = std::vector<std::wstring>;
};

TEST_F(ParseObserverTest, IsToldWhyThereIsNoDescription) {
  const std::wstring file = path(L"\\zorvel.xml");
  const auto expectOne = [](const ParseListener& listener, Kind kind, const std::wstring& note) {
    ASSERT_EQ(listener.notes.size(), 1U);
    EXPECT_EQ(listener.notes.front(), std::make_pair(kind, note));
  };
  expectOne(listen(), Kind::NoDescription, L"0:0 |||" + file);
  expectOne(listen("<zorvel>\n<a id='1' id='2'/></zorvel>"), Kind::DescriptionNotWellFormed,
            L"2:17 ||Attribute id redefined|" + file);
  expectOne(listen("\n <zorvel xmlns='urn:x'/>"), Kind::WrongDocumentElement, L"2:2 zorvel|||" + file);
  std::string wide = "<zorvel";
  for (int i = 0; i < 10001; ++i) wide += " a" + std::to_string(i) + "=''";
  expectOne(listen(wide + "/>"), Kind::DescriptionBeyondLimits, L"0:0 ||too many attributes|" + file);
  std::filesystem::remove(root_.path() / "zorvel.xml");
  std::filesystem::create_symlink("/proc/self/mem", root_.path() / "zorvel.xml");
  expectOne(listen(), Kind::DescriptionNotReadable, L"0:0 ||not readable|" + file);
}

TEST_F(ParseObserverTest, IsToldWhatIsRefusedSkippedAndDropped) {
  makeCharacterFolder("anna");
  root_.makeFolder("noskin/previews");
  root_.write("anna/previews/preview_k1.png", "");
  const ParseListener told = listen(R"(<zorvel>
<Character folder='anna'/>
<globalAssets><global/><asset id='g' local_asset_id='x'><any/></asset></globalAssets>
<character/><character id='b'/>
<character id='c' folder='none'/>
<character id='d' folder='noskin'><never/></character>
<character id='a' folder='anna' globalMaps='x' generalTextureFolder=''>
 <skin/><skins name='Skin'><Skin/></skins><skins name='s'/><skins name=''/>
 <cloth name=''><cloth/></cloth>
 <cloth name='Clothing'><clothing id='k0' available='available' name='Z'><material/></clothing><clothing id='k1'><style/></clothing></cloth>
 <cloth><clothing id='k2'/></cloth>
 <poses><pose id='p'><any/></pose><pose2/></poses>
 <categories name='1'><cat/></categories><categories name='2'/>
 <assets><material/></assets>
 <assetMatrix/>
 <AssetMatrix>
  <row/><matrix assetID='a'/><matrix poseID='p'/>
  <matrix poseID='p' assetID='a' xpos='12,5' ypos=' 0x1 ' zpos='' xrot='-' yrot='1e2' zrot='1 m'/>
 </AssetMatrix>
</character></zorvel>)");
  const std::vector<std::pair<Kind, std::wstring>> expected = {
      {Kind::ElementSkipped, L"2:1 Character|zorvel||"},
      {Kind::ElementSkipped, L"3:15 global|globalAssets||"},
      {Kind::AttributeOfTheSystem, L"3:24 asset|local_asset_id|x|"},
      {Kind::CharacterWithoutAttributes, L"4:1 character|||"},
      {Kind::CharacterWithoutFolder, L"4:13 character||b|"},
      {Kind::CharacterWithoutPreviews, L"5:1 character||c|" + path(L"\\none\\previews")},
      {Kind::CharacterWithoutSkin, L"6:1 character||d|" + path(L"\\noskin\\skin")},
      {Kind::AttributeOfTheSystem, L"7:1 character|globalMaps|x|"},
      {Kind::AttributeOfTheSystem, L"7:1 character|generalTextureFolder||"},
      {Kind::ElementSkipped, L"8:2 skin|character||"},
      {Kind::ElementSkipped, L"8:28 Skin|skins||"},
      {Kind::ListNameExtended, L"8:43 skins||s|"},
      {Kind::ElementSkipped, L"9:17 cloth|cloth||"},
      {Kind::AttributeOfTheSystem, L"10:25 clothing|available|available|"},
      {Kind::ElementSkipped, L"10:114 style|clothing||"},
      {Kind::ElementSkipped, L"12:35 pose2|poses||"},
      {Kind::ElementSkipped, L"13:23 cat|categories||"},
      {Kind::ElementSkipped, L"14:10 material|assets||"},
      {Kind::ElementSkipped, L"15:2 assetMatrix|character||"},
      {Kind::ElementSkipped, L"17:3 row|AssetMatrix||"},
      {Kind::MatrixRowDropped, L"17:9 matrix|poseID||"},
      {Kind::MatrixRowDropped, L"17:30 matrix|assetID||"},
      {Kind::NumberNotWhole, L"18:3 matrix|xpos|12,5|"},
      {Kind::NumberNotWhole, L"18:3 matrix|zpos||"},
      {Kind::NumberNotWhole, L"18:3 matrix|xrot|-|"},
      {Kind::NumberNotWhole, L"18:3 matrix|zrot|1 m|"},
      {Kind::ClothingWithoutPreview, L"10:25 clothing||k0|" + path(L"\\anna\\previews\\preview_k0.png")},
      {Kind::ClothingWithoutPreview, L"11:9 clothing||k2|" + path(L"\\anna\\previews\\preview_k2.png")}};
  EXPECT_EQ(told.notes, expected);
  clearLog();
}

TEST_F(ParseObserverTest, KnowsWhereEveryRecordStandsAndIsForgottenAfterwards) {
  makeCharacterFolder("anna");
  ParseListener first = listen(
      "<zorvel><globalAssets>\n<asset id='g'/></globalAssets>\n"
      "<character id='a' folder='anna'><assets>\n  <asset\n id='x'><m id='y'/></asset></assets>\n"
      "<AssetMatrix><matrix id='row'/></AssetMatrix></character></zorvel>");
  EXPECT_EQ(first.records, (Texts{L"2:1 g", L"3:1 a", L"4:3 x", L"5:9 y", L"6:14 row"}));
  first.records.clear();
  {
    const ObservedParsing outer(first);
    const ParseListener second = listen();
    EXPECT_EQ(second.records.size(), 5U);
    EXPECT_TRUE(first.records.empty()) << "the youngest counts";
    Parser2::ParseRepository(root_.wide().c_str());
    EXPECT_EQ(first.records.size(), 5U);
  }
  EXPECT_EQ(ObservedParsing::GetObserver(), nullptr);
  clearLog();
}

}  // namespace ZORVEL
