#include "scene/BuildReport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <max.h>

#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/application/ClassRegistry.h"
#include "host/files/Paths.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "scene/BuildFindings.h"
#include "scene/BuildSummary.h"
#include "tests/support/LoadedRepositoryFixture.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using ZORVEL::BuildFindings;
using ZORVEL::BuiltPiece;
using ZORVEL::Data2;
using ZORVEL::ElementKind;
using ZORVEL::FindingKind;
using ZORVEL::MaterialState;
using ZORVEL::MeshState;
using ZORVEL::PlacingState;
using ZORVEL::Selection2;

using Lines = std::vector<std::string>;

/// Every test starts with a repository that builds without a finding.
class BuildReports : public support::LoadedRepositoryFixture {
 protected:
  void SetUp() override {
    LoadedRepositoryFixture::SetUp();
    repository().mend();
    reload();
  }
  void remove(const char* file) const { std::filesystem::remove_all(repository().folder().path() / file); }
  /// The sentences, with the repository's root as "R:".
  Lines findings() const { return findingsOf(report()); }
  Lines findingsOf(const ZORVEL::BuildReport& report) const {
    Lines lines;
    const std::string root = host::toUtf8(repository().root());
    for (const ZORVEL::BuildFinding& finding : BuildFindings::Describe(report)) {
      std::string line = host::toUtf8(finding.text);
      for (std::size_t at = line.find(root); at != std::string::npos; at = line.find(root)) {
        line.replace(at, root.size(), "R:");
      }
      lines.push_back(line);
    }
    return lines;
  }
  std::string summary() const { return host::toUtf8(ZORVEL::BuildSummary::Describe(report())); }
  std::vector<FindingKind> kinds() const {
    std::vector<FindingKind> result;
    for (const ZORVEL::BuildFinding& finding : BuildFindings::Describe(report())) result.push_back(finding.kind);
    return result;
  }
};

TEST_F(BuildReports, NameElementMeshPlaceAndMaterialOfEveryPiece) {
  addAsset(L"a1", L"a1m1");
  addAsset(L"a4");
  addAsset(L"g1", L"g1m1");
  build();
  EXPECT_THAT(findings(), IsEmpty());
  EXPECT_EQ(summary(), "");
  const struct {
    ElementKind kind;
    const wchar_t* ids;
    PlacingState placing;
    MaterialState material;
    const wchar_t* library;
  } expected[] = {
      {ElementKind::Body, L"p1 s1", PlacingState::NotNeeded, MaterialState::FromLibrary, L"\\skin\\skin.mat"},
      {ElementKind::MandatoryAsset, L"a2 ", PlacingState::ByRow, MaterialState::FromLibrary, L"\\seat\\materials.mat"},
      {ElementKind::Clothing, L"k1 k1m1", PlacingState::NotNeeded, MaterialState::FromLibrary,
       L"\\summer\\materials.mat"},
      {ElementKind::Asset, L"a1 a1m1", PlacingState::ByRow, MaterialState::FromLibrary, L"\\anna\\materials.mat"},
      {ElementKind::Asset, L"a4 ", PlacingState::NotNeeded, MaterialState::FromScene, L""},
      {ElementKind::SharedAsset, L"g1 g1m1", PlacingState::ByRow, MaterialState::FromScene, L""}};
  ASSERT_EQ(report().pieces.size(), std::size(expected));
  for (std::size_t i = 0; i < std::size(expected); ++i) {
    const BuiltPiece& piece = report().pieces[i];
    EXPECT_EQ(piece.element.kind, expected[i].kind);
    EXPECT_EQ(piece.element.id + L" " + piece.element.materialId, expected[i].ids);
    EXPECT_EQ(piece.mesh, MeshState::Found);
    EXPECT_EQ(piece.placing, expected[i].placing);
    EXPECT_EQ(piece.material.state, expected[i].material) << i;
    const std::wstring library = piece.material.searches.empty() ? L"" : piece.material.searches.back().file;
    const std::wstring ending = expected[i].library;
    ASSERT_GE(library.size(), ending.size());
    EXPECT_EQ(library.substr(library.size() - ending.size()), ending);
  }
  EXPECT_EQ(report().pieces[1].element.name, L"Seat");
}

TEST_F(BuildReports, SayWhyNothingWasBuilt) {
  const struct {
    void (*set)(const wchar_t*);
    const wchar_t* good;
    const char* what;
  } cases[] = {{Selection2::SetCharacter, L"c1", "character"},
               {Selection2::SetPose, L"p1", "pose"},
               {Selection2::SetCloth, L"k1", "clothing"},
               {Selection2::SetStyle, L"k1m1", "style of the clothing"},
               {Selection2::SetSkin, L"s1", "skin"}};
  for (const auto& one : cases) one.set(nullptr);
  // Of several the first is told.
  for (const auto& one : cases) {
    EXPECT_EQ(build(), nullptr);
    EXPECT_EQ(findings(), Lines{std::string("Nothing was built: no ") + one.what + " is chosen."});
    one.set(L"x9");
    EXPECT_EQ(build(), nullptr);
    EXPECT_EQ(findings(), Lines{std::string("Nothing was built: there is no ") + one.what + " with the id \"x9\"."});
    one.set(one.good);
  }
  Data2::AddCharacter(L"Bo", L"c9", L"");
  Selection2::SetCharacter(L"c9");
  EXPECT_EQ(build(), nullptr);
  EXPECT_EQ(findings(), Lines{R"(Nothing was built: character "c9" has no "folder".)"});
  ZORVEL::Settings::FreeSettings();
  EXPECT_EQ(build(), nullptr);
  EXPECT_EQ(findings(), Lines{"Nothing was built: the settings that hold the repository's path are not loaded."});
  EXPECT_EQ(summary(), "Nothing was built: the settings that hold the repository's path are not loaded");
  expectComplaints({L"Settings::GetPath - singleton is nullptr"});
}

TEST_F(BuildReports, NameEveryElementThatIsLeftOutAndWhy) {
  // The lamp has its place.
  repository().edit("<AssetMatrix>", R"(<AssetMatrix><matrix poseID="p1" assetID="a6"/>)");
  const std::string whole = repository().folder().read("zorvel.xml");
  const struct {
    std::vector<std::pair<const char*, const char*>> edits;
    Lines expected;
  } cases[] = {
      {{{R"(name="Standing" )", ""}},
       {R"(Body (p1): left out: it has no "name".)",
        "Mandatory asset (a2): left out: the body that it belongs to was left out."}},
      {{{R"(folder="standing")", ""}, {R"(<asset id="a2"/>)", ""}},
       {R"(Body "Standing" (p1): left out: it has no "folder".)"}},
      {{{R"(name="Summer" )", ""}}, {R"(Clothing (k1): left out: it has no "name".)"}},
      {{{R"(name="Lamp" )", ""}}, {R"(Asset (a6): left out: it has no "name".)"}},
      {{{R"(folder="lamp" )", ""}}, {R"(Asset "Lamp" (a6): left out: it has no "folder".)"}},
      {{{R"(<asset id="a6")", "<asset"}}, {R"(Asset "Lamp": left out: it has no "id".)"}},
      {{{R"(folder="lamp" type="common")", R"(type="global" globalID="g9")"}},
       {R"(Asset "Lamp" (a6): left out: there is no shared asset with the id "g9".)"}},
      {{{R"(<asset id="a2"/>)", R"(<asset asset_id="a2"/>)"}}, {R"(Mandatory asset: left out: it has no "id".)"}},
      {{{R"(<asset id="a2"/>)", R"(<asset id="a9"/>)"}},
       {R"(Mandatory asset (a9): left out: the character has no asset with the id "a9".)"}},
      {{{R"(<asset id="a2"/>)", R"(<asset id="a5"/>)"}, {R"( globalID="g1")", ""}},
       {R"(Mandatory asset (a5): left out: it names no shared asset: it has no "globalID".)"}},
      {{{R"(<asset id="a2"/>)", R"(<asset id="a5"/>)"}, {R"(folder="bench")", ""}},
       {R"(Mandatory asset "Bench" (g1): left out: it has no "folder".)"}}};
  for (const auto& one : cases) {
    repository().folder().write("zorvel.xml", whole);
    for (const auto& edit : one.edits) repository().edit(edit.first, edit.second);
    reload();
    Selection2::AddAsset(Data2::GetUnique(Data2::GetCharacter(0)->GetContainerElement(ZORVEL::ASSETS, 5)));
    EXPECT_NE(build(), nullptr);
    std::vector<std::string> leftOut;
    for (const std::string& line : findings()) {
      if (line.find("left out") != std::string::npos) leftOut.push_back(line);
    }
    EXPECT_EQ(leftOut, one.expected);
  }
}

TEST_F(BuildReports, NameWhatTheHostOrTheSelectionDoesNotGive) {
  Selection2::AddAsset(7);
  build();
  EXPECT_EQ(findings(), Lines{"Asset: left out: the selection's number 7 names nothing that is loaded."});
  EXPECT_EQ(summary(), "Built without: asset");
  host::Application::instance().reset();
  host::Application::instance().classes().setRendererPresent(false);
  build();
  host::Application::instance().classes().setRendererPresent(true);
  EXPECT_EQ(report().omissions.size(), 4U);
  EXPECT_EQ(findings().front(),
            R"(Body "Standing" (p1): left out: the renderer's proxy class is missing, for the mesh )"
            R"(R:\anna\standing\pose.vrmesh.)");
}

TEST_F(BuildReports, NameWhatOnlyOtherHostsDo) {
  BuiltPiece piece;
  piece.element = {ElementKind::Clothing, L"k1", L"Summer", L"k1m1"};
  piece.material = {MaterialState::NameOfMap,
                    L"Blue",
                    {{L"a.mat", ZORVEL::LibraryState::NameOfMap}, {L"b.mat", ZORVEL::LibraryState::WithoutName}},
                    {L"x.png", L"y.png"}};
  ZORVEL::BuildReport report;
  report.pieces = {piece};
  report.isGrouped = false;
  report.isOnLayer = false;
  EXPECT_THAT(findingsOf(report),
              ElementsAre(R"(Clothing "Summer" (k1): the material "Blue" is the name of a texture map; searched: )"
                          "a.mat (has a texture map of that name), b.mat.",
                          R"(Clothing "Summer" (k1): the texture x.png is missing.)",
                          R"(Clothing "Summer" (k1): the texture y.png is missing.)",
                          "The character could not be grouped.", "The character's layer could not be made."));
  EXPECT_EQ(ZORVEL::BuildSummary::Describe(report),
            L"Built without: material of Summer, textures of Summer, group, layer");
}

TEST_F(BuildReports, NameMeshesAndTexturesThatAreNotOnDiskAndAskForSharedOnesNoMore) {
  remove("anna/standing/pose.vrmesh");
  repository().folder().write("anna/seat/asset.vrmesh", "");
  remove("maps/blue.png");
  remove("anna/summer/k1_p1.vrmesh");
  repository().folder().makeFolder("anna/summer/k1_p1.vrmesh");
  build();
  EXPECT_THAT(findings(),
              ElementsAre(R"(Body "Standing" (p1): the mesh R:\anna\standing\pose.vrmesh is missing.)",
                          R"(Mandatory asset "Seat" (a2): the mesh R:\anna\seat\asset.vrmesh cannot be read.)",
                          R"(Clothing "Summer" (k1): the mesh R:\anna\summer\k1_p1.vrmesh cannot be read.)",
                          R"(Clothing "Summer" (k1): the texture R:maps\blue.png is missing.)"));
  EXPECT_THAT(kinds(), Each(FindingKind::Bare));
  EXPECT_EQ(summary(), "Built without: mesh of body, mesh of Seat, mesh of Summer, textures of Summer");
  build();
  EXPECT_THAT(findings(), IsEmpty());
  for (const BuiltPiece& piece : report().pieces) {
    EXPECT_EQ(piece.mesh, MeshState::Shared);
    EXPECT_EQ(piece.material.state, MaterialState::FromScene);
  }
}

TEST_F(BuildReports, NameWhatIsWithoutAMaterialAndWhereItWasSearchedFor) {
  repository().edit(R"( material="Skin light")", "");
  repository().edit(R"(material="Oak" preview)", R"(material="Pine" preview)");
  repository().edit(R"(type="common" category="t1" material="Leather">)", R"(type="common" category="t1">)");
  reload();
  remove("anna/props.mat");
  repository().folder().write("global_assets/bench/materials.mat", "no library");
  Selection2::SetStyle(L"k1m3");
  addAsset(L"a1");
  addAsset(L"g1", L"g1m1");
  build();
  EXPECT_THAT(
      findings(),
      ElementsAre(R"(Body "Standing" (p1): no material: skin "s1" has no "material".)",
                  R"(Clothing "Summer" (k1): the material "Nowhere" is in no library; searched: )"
                  R"(R:\anna\summer\materials.mat, R:\anna\materials.mat, R:\anna\props.mat (missing or unreadable).)",
                  R"(Asset "Bag" (a1): no material: it has no "material".)",
                  R"(Shared asset "Bench" (g1): the material "Pine" is in no library; searched: )"
                  R"(R:\global_assets\bench\materials.mat (missing or unreadable), R:\global_assets\materials.mat.)"));
  EXPECT_EQ(summary(), "Built without: material of body, material of Summer, material of Bag, material of Bench");
}

TEST_F(BuildReports, NameWhatHasNoPlace) {
  Selection2::SetPose(L"p2");
  addAsset(L"a1");
  addAsset(L"a4");
  addAsset(L"g1", L"g1m1");
  build();
  const std::string noRow = R"(no row of the asset matrix for the pose "p2"; it is at the origin, without a material.)";
  EXPECT_THAT(findings(), ElementsAre(R"(Asset "Bag" (a1): )" + noRow, R"(Shared asset "Bench" (g1): )" + noRow));
  EXPECT_THAT(kinds(), Each(FindingKind::Unplaced));
  EXPECT_EQ(summary(), "Built without: place of Bag, place of Bench");
  expectComplaints({L"could not find asset matrix..."});
  repository().edit(R"(globalID="g1")", R"(globalID="g2")");
  reload();
  addAsset(L"g1", L"g1m1");
  build();
  EXPECT_THAT(findings(), ElementsAre(R"(Shared asset "Bench" (g1): the character does not refer to it; )"
                                      "it is at the origin, without a material."));
}

}  // namespace
