#include "model/PageOffers.h"

#include "core/FileStamps.h"
#include "model/Fields.h"
#include "model/RepositoryValidation.h"
#include "repository/Parser2.h"
#include "tests/repository/RepositoryFixture.h"

namespace ZORVEL {

/// Tells elements as "id", or "id: reason" with the root of the repository as "R:".
class PageOffersTest : public RepositoryFixture {
 protected:
  using Lines = std::vector<std::wstring>;

  void SetUp() override {
    RepositoryFixture::SetUp();
    for (const char* folder : {"anna/skin", "anna/standing", "anna/blouse", "anna/scarf", "anna/cap"}) {
      root_.makeFolder(folder);
    }
    root_.makeFolder("anna/bag/preview.png");
    for (const char* file : {"preview_kb.png", "preview_kc.png", "kb_p1.png", "kb_p2.png", "kb_p4.png"}) {
      root_.write(std::string("anna/previews/") + file, "");
    }
    for (const char* file : {"blouse/kb_p1.vrmesh", "skin/light.png", "scarf/preview.png", "cap/preview.png"}) {
      root_.write(std::string("anna/") + file, "");
    }
    writeDescription(R"(<zorvel>
      <globalAssets><asset id='g1' type='global' folder='bench'/></globalAssets>
      <character id='c' folder='anna'>
        <skins><skin id='s1' preview='dark.png'/><skin id='s2' preview='light.png'/></skins>
        <cloth>
          <clothing id='kb' name='b' folder='blouse'><material id='m1'/><select asset_id='a5'/><exclude id='a6'/></clothing>
          <clothing id='kc' name='c' folder='coat'/>
        </cloth>
        <poses>
          <pose id='p1' folder='standing'/><pose id='p2' folder='standing' url='u?'/><pose id='p3' folder='standing'/>
          <pose id='p4' folder='lost'/><pose id='p5'/>
        </poses>
        <categories><category id='t' required='true'/></categories>
        <assets>
          <asset id='a1' type='specific' category='t' folder='gone'/><asset id='a2' type='specific' category='t'/>
          <asset id='a3' type='global' category='t' globalID='g1'/><asset id='a4' type='specific' category='t' folder='bag'/>
          <asset id='a5' type='specific' category='t' folder='scarf'/><asset id='a6' type='specific' category='t'/>
          <asset id='a7' type='specific' category='t' folder='cap'/><asset id='a8' type='common' category='t'/>
          <asset id='a9' type='global' category='t' globalID='g9'/><asset id='a10' type='global' category='t'/>
          <asset id='a11' category='t9'/><asset id='a12'/>
        </assets>
        <AssetMatrix><matrix poseID='p1' assetID='a3'/></AssetMatrix>
      </character></zorvel>)");
    Parser2::ParseRepository(root_.wide().c_str());
    Data2::SetValidated(true);
    Selection2::SetCharacter(L"c");
    clearLog();
  }
  void TearDown() override {
    clearLog();
    RepositoryFixture::TearDown();
  }

  static CharacterData& anna() { return *Data2::GetCharacter(0); }
  PageOffer page(PageKind kind) {
    PageOffer found;
    PageOffers(anna(), files_).VisitAll([&](PageOffer page) {
      if (page.kind == kind) found = page;
    });
    return found;
  }
  std::wstring sentence(const Refusal& refusal) const {
    std::wstring text = refusal.GetText();
    const std::size_t root = text.find(root_.wide());
    return root == std::wstring::npos ? text : text.replace(root, root_.wide().size(), L"R:");
  }
  Lines lines(const std::vector<OfferedElement>& elements) const {
    Lines all;
    for (const OfferedElement& one : elements) {
      const std::wstring reason = sentence(one.refusal);
      all.push_back(Fields::TextOrEmpty(one.record, L"id") + (reason.empty() ? L"" : L": " + reason));
    }
    return all;
  }
  std::wstring whyUnmarked(const DataContainer& record) const {
    return sentence(RepositoryValidation::WhyUnmarked(record, &anna()));
  }

  FileStamps files_;
};

TEST_F(PageOffersTest, ClothesAndPosesSayWhatIsMissing) {
  EXPECT_EQ(lines(PageOffers(anna(), files_).GetClothing().shown),
            (Lines{L"kb", L"kc: its folder is missing: R:\\anna\\coat"}));
  Selection2::SetCloth(L"kb");
  const PageOffer poses = page(PageKind::Poses);
  EXPECT_EQ(lines(poses.shown),
            (Lines{L"p1", L"p2: the clothing has no mesh in this pose: R:\\anna\\blouse\\kb_p2.vrmesh"}));
  EXPECT_EQ(lines(poses.hidden), (Lines{L"p3: its picture is missing: R:\\anna\\previews\\kb_p3.png",
                                        L"p4: its folder is missing: R:\\anna\\lost", L"p5: it has no \"folder\""}));
  EXPECT_EQ(poses.shown[1].url, L"u?&gid=kb");
}

TEST_F(PageOffersTest, WithoutClothingThatIsMissedBeforeThePose) {
  EXPECT_EQ(lines(page(PageKind::Skins).hidden), (Lines{L"s1: no clothing is chosen that there is: \"\"",
                                                        L"s2: no clothing is chosen that there is: \"\""}));
  Selection2::SetCloth(L"kb");
  Selection2::SetPose(L"p9");
  EXPECT_EQ(lines(page(PageKind::Styles).hidden), Lines{L"m1: no pose is chosen that there is: \"p9\""});
  EXPECT_EQ(lines(page(PageKind::Assets).hidden).back(), L"a10: no pose is chosen that there is: \"p9\"")
      << "before its own lacks are spoken of";
}

TEST_F(PageOffersTest, AssetsSayWhyTheyAreHiddenAndTheFirstShownIsChosenOnce) {
  Selection2::SetCloth(L"kb");
  Selection2::SetPose(L"p1");
  EXPECT_EQ(lines(page(PageKind::Skins).hidden), Lines{L"s1: its picture is missing: R:\\anna\\skin\\dark.png"});
  const PageOffer assets = page(PageKind::Assets);
  EXPECT_EQ(lines(assets.shown), (Lines{L"a5", L"a7"}));
  EXPECT_EQ(assets.choice, std::vector<int>{assets.shown[0].unique}) << "required, and the clothing asks for it too";
  EXPECT_EQ(
      lines(assets.hidden),
      (Lines{L"a6: the clothing excludes \"a6\"", L"a8: the asset matrix has no row for pose \"p1\" and asset \"a8\"",
             L"a1: its folder is missing: R:\\anna\\gone", L"a2: it has no \"folder\"",
             L"g1: its folder is missing: R:\\global_assets\\bench",
             L"a4: its picture is missing: R:\\anna\\bag\\preview.png",
             L"a9: there is no global asset with the id \"g9\"", L"a10: it has no \"globalID\""}));
  std::vector<OfferedElement> withoutPage;
  PageOffers(anna(), files_).VisitAssetsWithoutPage([&](const OfferedElement& one) { withoutPage.push_back(one); });
  EXPECT_EQ(lines(withoutPage),
            (Lines{L"a11: there is no category with the id \"t9\"", L"a12: it has no \"category\""}));
}

TEST_F(PageOffersTest, AReferenceIsUnmarkedForWhatItRefersToAndElementsForTheirCharacter) {
  EXPECT_EQ(whyUnmarked(*anna().GetContainerElement(ASSETS, 2)), L"its folder is missing: R:\\global_assets\\bench");
  EXPECT_EQ(whyUnmarked(*anna().GetPose(L"p1")), L"");
  std::filesystem::remove_all(root_.path() / "anna");
  Data2::SetValidated(true);
  EXPECT_EQ(whyUnmarked(anna()), L"its folder is missing: R:\\anna");
  EXPECT_EQ(whyUnmarked(*anna().GetPose(L"p5")), L"the folder of its character is missing: R:\\anna");
}

}  // namespace ZORVEL
