#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <set>

#include "tests/check/CompleteRepository.h"
#include "tests/support/SmallRepository.h"

namespace {

using support::CompleteRepository;
using support::shortForm;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Edit = std::function<void(const CompleteRepository&)>;

Edit edit(const std::string& from, const std::string& to) {
  return [=](const CompleteRepository& repository) { repository.edit(from, to); };
}
Edit without(const std::string& text) { return edit(text, ""); }
Edit remove(const std::string& file) {
  return [=](const CompleteRepository& repository) { repository.remove(file); };
}
/// In the description and in the names of files.
Edit renameAll(const std::string& from, const std::string& to) {
  return [=](const CompleteRepository& repository) { repository.renameAll(from, to); };
}
Edit rename(const std::string& from, const std::string& to) {
  return [=](const CompleteRepository& repository) { repository.rename(from, to); };
}
Edit write(const std::string& file, const std::string& text) {
  return [=](const CompleteRepository& repository) { repository.write(file, text); };
}
Edit picture(const std::string& file, int width, int height) {
  return [=](const CompleteRepository& repository) { repository.writePicture(file, width, height); };
}
/// A folder where a file is expected.
Edit folder(const std::string& file) {
  return [=](const CompleteRepository& repository) {
    repository.remove(file);
    repository.folder().makeFolder(file);
  };
}
/// A link to what would be read, were it followed.
Edit linkOut(const std::string& file) {
  return [=](const CompleteRepository& repository) {
    repository.remove(file);
    std::filesystem::create_symlink("/proc/self/mem", repository.folder().path() / file);
  };
}
Edit pipe(const std::string& file) {
  return [=](const CompleteRepository& repository) { repository.replaceByPipe(file); };
}

/// Out of the repository and in again.
Edit aroundTheRoot(const std::string& folder) {
  return [=](const CompleteRepository& repository) {
    const std::string root = repository.folder().path().filename().string();
    repository.edit("folder=\"" + folder + '"', "folder=\"..\\..\\" + root + "\\anna\\" + folder + '"');
  };
}

struct Case {
  std::vector<Edit> edits;
  /// All of them, in their order.
  std::vector<std::string> findings;
};

const char* const ANNA = R"( id="anna" name="Anna" folder="anna")";
const char* const SCALED = R"({"name": "Red", "class": "scaled", "blocks": [[{"id": 22, "type": "int", "value": 3}]]})";

std::string manyAttributes() {
  std::string text;
  for (int i = 0; i <= 10000; ++i) text += " a" + std::to_string(i) + "=\"\"";
  return text;
}

std::vector<Case> readingCases() {
  return {
      {{remove("zorvel.xml")}, {"ZV101 "}},
      {{folder("zorvel.xml")}, {"ZV101 "}},
      {{pipe("zorvel.xml")}, {"ZV102 zorvel.xml: not readable"}},
      {{linkOut("zorvel.xml")}, {"ZV102 zorvel.xml: it is a link that leads out of the repository"}},
      {{edit("</character>", "")}, {"ZV103 zorvel.xml: Opening and ending tag mismatch: character line 9 and zorvel"}},
      {{edit("<zorvel>", "<zorvel" + manyAttributes() + ">")}, {"ZV104 zorvel.xml: too many attributes"}},
      {{edit("<zorvel>", "<zorvel xmlns=\"urn:x\">")}, {"ZV105 zorvel.xml: zorvel"}},
      {{without(ANNA)}, {"ZV321 anna/: anna/ (34 files)", "ZV106 character"}},
      {{without(R"( folder="anna")")}, {"ZV321 anna/: anna/ (34 files)", "ZV107 character[anna]"}},
      {{rename("anna/previews", "anna/preview")},
       {"ZV321 anna/preview/: anna/preview/ (6 files)", "ZV108 character[anna]: anna/previews"}},
      {{rename("anna/skin", "anna/skins")},
       {"ZV321 anna/skins/: anna/skins/ (3 files)", "ZV109 character[anna]: anna/skin"}},
      {{edit("<categories>", "<light/><categories>")}, {"ZV110 character[anna]/light: light"}},
      {{edit("<categories>", R"(<skin id="third"/><categories>)")}, {"ZV111 character[anna]/skin[third]: skin"}},
      {{edit("<categories>", R"(<Poses name="Pose"/><categories>)")}, {"ZV112 character[anna]/Poses: Poses"}},
      {{edit("<skins ", "<Skins "), edit("</skins>", "</Skins>")}, {"ZV112 character[anna]/Skins: Skins"}},
      {{edit("<cloth ", "<Cloth "), edit("</cloth>", "</Cloth>")}, {"ZV112 character[anna]/Cloth: Cloth"}},
      {{edit("<poses ", "<Poses "), edit("</poses>", "</Poses>")}, {"ZV112 character[anna]/Poses: Poses"}},
      {{edit("<categories>", "<category_>"), edit("</categories>", "</category_>")},
       {"ZV110 character[anna]/category_: category_"}},
      {{edit("<assets>", "<Assets>"), edit("</assets>", "</Assets>")}, {"ZV112 character[anna]/Assets: Assets"}},
      {{edit("<AssetMatrix>", "<assetMatrix>"), edit("</AssetMatrix>", "</assetMatrix>")},
       {"ZV112 character[anna]/assetMatrix: assetMatrix"}},
      {{edit(R"(id="light")", R"(id="light" colour="pale")")}, {"ZV113 character[anna]/skins/skin[light]: colour"}},
      {{edit(R"(folder="standing" url)", R"(folder="standing" URL)")},
       {"ZV114 character[anna]/poses/pose[standing]: URL"}},
      {{edit(R"(id="coat")", R"(id="coat" available="1")")}, {"ZV115 character[anna]/cloth/clothing[coat]: available"}},
      {{edit(R"(material id="leather")", R"(colour id="leather")")},
       {"ZV116 character[anna]/assets/asset[bag]/colour[leather]: colour"}},
      {{edit(R"(<asset id="chair"/>)", R"(<prop id="chair"/>)")},
       {"ZV117 character[anna]/poses/pose[sitting]/prop[chair]: prop"}},
      {{edit("</poses>", R"(</poses><poses name=" and more"/>)")}, {"ZV118 character[anna]/poses:  and more"}},
      {{without(R"( name="Style")")}, {"ZV119 character[anna]/cloth"}},
      {{without(R"( name="Dark")")}, {"ZV120 character[anna]/skins/skin[dark]: skin"}},
      {{remove("anna/previews/preview_coat.png")},
       {"ZV121 character[anna]/cloth/clothing[coat]: anna/previews/preview_coat.png"}},
      {{edit(R"(name="Coat")", R"(name="coat")"), edit(R"(name="Dress")", R"(name="Zebra")")},
       {"ZV122 character[anna]/cloth/clothing[coat]: coat"}},
      {{edit(R"(poseID="sitting" assetID="seat")", R"(poseID="sitting")")},
       {"ZV123 character[anna]/AssetMatrix/matrix: assetID"}},
      {{edit("</AssetMatrix>", R"(<matrix poseID="sitting" assetID="chair" xpos="1"/></AssetMatrix>)")},
       {"ZV124 character[anna]/AssetMatrix/matrix: 50"}},
      {{edit(R"(zpos="80.5")", R"(zpos="80,5")")}, {"ZV125 character[anna]/AssetMatrix/matrix: zpos"}},
      {{edit("</AssetMatrix>", R"(<matrix poseID="lying" assetID="chair"/></AssetMatrix>)")},
       {"ZV126 character[anna]/AssetMatrix/matrix: lying"}},
      {{edit("</AssetMatrix>", R"(<matrix poseID="sitting" assetID="chairs"/></AssetMatrix>)")},
       {"ZV127 character[anna]/AssetMatrix/matrix: chairs"}},
      {{edit("</AssetMatrix>", R"(<matrix poseID="sitting" assetID="bench"/></AssetMatrix>)")},
       {"ZV127 character[anna]/AssetMatrix/matrix: bench"}},
      {{edit("</AssetMatrix>", R"(<matrix poseID="sitting" assetID="cap"/></AssetMatrix>)")},
       {"ZV128 character[anna]/AssetMatrix/matrix: cap"}},
  };
}

std::vector<Case> idCases() {
  return {
      {{without(R"( id="anna")")}, {"ZV201 character"}},
      {{edit(R"(id="red")", R"(ID="red")")}, {"ZV202 character[anna]/cloth/clothing[coat]/material: style"}},
      {{edit(R"(<exclude id=)", R"(<exclude asset_id=)")},
       {"ZV113 character[anna]/cloth/clothing[dress]/exclude: asset_id",
        "ZV416 character[anna]/cloth/clothing[dress]/exclude"}},
      {{edit(R"(clothing id="coat")", R"(clothing ID="coat")")},
       {"ZV121 character[anna]/cloth/clothing: anna/previews/preview_.png"}},
      {{edit(R"(folder="hat")", R"(Folder="hat")")}, {"ZV305 character[anna]/assets/asset[hat]: asset"}},
      {{edit(R"(id="anna" name="Anna" folder)", R"(id="anna" name="Anna" folders)")},
       {"ZV321 anna/: anna/ (34 files)", "ZV107 character[anna]"}},
      {{without(R"( id="red")")}, {"ZV202 character[anna]/cloth/clothing[coat]/material: style"}},
      {{edit(R"(id="dark")", R"(id="")")}, {"ZV203 character[anna]/skins/skin[]: skin"}},
      {{edit(R"(id="dark")", R"(id="light")")}, {"ZV204 character[anna]/skins/skin[light]: skin"}},
      {{edit(R"(id="scarf")", R"(id="cap")")}, {"ZV205 character[anna]/assets/asset[cap]: 37"}},
      {{edit("</categories>", R"(<category id="hats" name="More"/></categories>)")},
       {"ZV206 character[anna]/categories/category[hats]: 30"}},
      {{edit("</globalAssets>", R"(<asset id="bench" name="Other" folder="bench" type="global"/></globalAssets>)")},
       {"ZV207 globalAssets/asset[bench]: 4"}},
      {{edit("</assets>",
             R"(<asset id="bench2" name="Bench" type="global" globalID="bench" category="things"/></assets>)")},
       {"ZV208 character[anna]/assets/asset[bench2]: 38"}},
      {{renameAll("dress_", "COAT_"), renameAll("preview_dress", "preview_COAT"),
        edit(R"(clothing id="dress")", R"(clothing id="COAT")")},
       {"ZV209 character[anna]/cloth/clothing[COAT]: coat"}},
      {{edit("</skins>", R"(<skin id="Light" name="Pale" preview="light.png" material="Light"/></skins>)")}, {}},
      {{renameAll("dress_", "coat_a_"), renameAll("preview_dress", "preview_coat_a"),
        renameAll("sitting", "a_standing"), edit(R"(clothing id="dress")", R"(clothing id="coat_a")")},
       {"ZV210 character[anna]/cloth/clothing[coat]: clothing \"coat\" in pose \"a_standing\""}},
      {{renameAll("coat", "preview"), renameAll("_sitting", "_dress"), renameAll("sitting\\.vrmesh", "dress.vrmesh"),
        renameAll("(poseID|pose id)=\"sitting\"", "$1=\"dress\"")},
       {"ZV210 character[anna]/cloth/clothing[preview]: clothing \"preview\" in pose \"dress\"",
        "ZV310 character[anna]/cloth/clothing[dress]: anna/previews/preview_dress.png"}},
      {{renameAll("standing", "con")},
       {"ZV211 character[anna]/poses/pose[con]: folder", "ZV211 character[anna]/poses/pose[con]: id"}},
      {{edit(R"(folder="bag")", R"(folder="bag.")"), rename("anna/bag", "anna/bag.")},
       {"ZV211 character[anna]/assets/asset[bag]: folder"}},
      {{edit("</categories>", R"(<category name="More"/></categories>)")},
       {"ZV212 character[anna]/categories/category"}},
  };
}

std::vector<Case> fileCases() {
  return {
      {{remove("anna/coat")}, {"ZV301 character[anna]/cloth/clothing[coat]: anna/coat"}},
      {{remove("anna/standing")}, {"ZV302 character[anna]/poses/pose[standing]: anna/standing"}},
      {{remove("anna/bag")}, {"ZV303 character[anna]/assets/asset[bag]: anna/bag"}},
      {{remove("global_assets/bench")}, {"ZV304 globalAssets/asset[bench]: global_assets/bench"}},
      {{without(R"( folder="hat")")},
       {"ZV321 anna/hat/: anna/hat/ (2 files)", "ZV305 character[anna]/assets/asset[hat]: asset"}},
      {{without(R"( folder="coat")")},
       {"ZV321 anna/coat/: anna/coat/ (4 files)", "ZV306 character[anna]/cloth/clothing[coat]"}},
      {{edit(R"(folder="hat")", R"(folder="")")},
       {"ZV321 anna/hat/: anna/hat/ (2 files)", "ZV307 character[anna]/assets/asset[hat]: asset"}},
      {{remove("overlay100x300.png")}, {"ZV308 : overlay100x300.png"}},
      {{write("anna/skin/dark.png", "no picture")}, {"ZV309 character[anna]/skins/skin[dark]: anna/skin/dark.png"}},
      {{picture("anna/coat/red.png", 150, 150)},
       {"ZV310 character[anna]/cloth/clothing[coat]/material[red]: anna/coat/red.png"}},
      {{remove("anna/previews/coat_sitting.png")},
       {"ZV311 character[anna]/poses/pose[sitting]: anna/previews/coat_sitting.png"}},
      {{remove("anna/coat/coat_sitting.vrmesh")},
       {"ZV312 character[anna]/cloth/clothing[coat]: anna/coat/coat_sitting.vrmesh"}},
      {{remove("anna/skin/light.png")}, {"ZV313 character[anna]/skins/skin[light]: anna/skin/light.png"}},
      {{without(R"( preview="dark.png")"), remove("anna/skin/dark.png")},
       {"ZV314 character[anna]/skins/skin[dark]: skin"}},
      {{remove("anna/coat/red.png")}, {"ZV315 character[anna]/cloth/clothing[coat]/material[red]: anna/coat/red.png"}},
      {{remove("anna/hat/preview.png")}, {"ZV316 character[anna]/assets/asset[hat]: anna/hat/preview.png"}},
      {{remove("global_assets/bench/oak.png")},
       {"ZV317 globalAssets/asset[bench]/material[oak]: global_assets/bench/oak.png"}},
      {{rename("anna/hat", "anna/Hat")}, {"ZV318 anna/Hat: anna/hat"}},
      {{aroundTheRoot("bag")},
       {"ZV321 anna/bag/: anna/bag/ (4 files)", "ZV320 character[anna]/assets/asset[bag]: folder"}},
      {{write("anna/hat/old.png", "")}, {"ZV321 anna/hat/old.png"}},
      {{write("attic/a.png", ""), write("attic/b.png", "")}, {"ZV321 attic/: attic/ (2 files)"}},
      {{remove("anna/sitting/pose.vrmesh")}, {"ZV322 character[anna]/poses/pose[sitting]: anna/sitting/pose.vrmesh"}},
      {{remove("anna/hat/asset.vrmesh")}, {"ZV323 character[anna]/assets/asset[hat]: anna/hat/asset.vrmesh"}},
      {{remove("anna/cap/sitting.vrmesh")}, {"ZV324 character[anna]/assets/asset[cap]: anna/cap/sitting.vrmesh"}},
      {{write("anna/hat/asset.vrmesh", "v 1 2")}, {"ZV325 character[anna]/assets/asset[hat]: anna/hat/asset.vrmesh"}},
      {{folder("anna/hat/asset.vrmesh")}, {"ZV325 character[anna]/assets/asset[hat]: anna/hat/asset.vrmesh"}},
      {{write("anna/hat/asset.vrmesh", std::string("\x01\0\x02", 3))}, {"ZV326 : 1"}},
      {{write("anna/hat/asset.vrmesh", support::boxObj(9000, 1, 1))},
       {"ZV327 character[anna]/assets/asset[hat]: anna/hat/asset.vrmesh"}},
      {{pipe("anna/hat/preview.png")}, {"ZV329 character[anna]/assets/asset[hat]: anna/hat/preview.png"}},
      {{pipe("anna/hat/asset.vrmesh")}, {"ZV325 character[anna]/assets/asset[hat]: anna/hat/asset.vrmesh"}},
  };
}

std::vector<Case> offerCases() {
  const std::string skins = R"(<skin id="light" name="Light" preview="light.png" material="Light"/>)";
  return {
      {{edit("<skins name=\"Skin\">", "<skins name=\"Skin\"><!--"), edit("</skins>", "--></skins>")},
       {"ZV321 anna/skin/dark.png", "ZV321 anna/skin/light.png", "ZV401 character[anna]: skin"}},
      {{remove("anna/coat/coat_standing.vrmesh"), remove("anna/coat/coat_sitting.vrmesh")},
       {"ZV402 character[anna]/cloth/clothing[coat]: there is no mesh anna/coat/coat_standing.vrmesh, and 1 more"}},
      {{remove("anna/previews/coat_sitting.png"), remove("anna/previews/dress_sitting.png")},
       {"ZV403 character[anna]/poses/pose[sitting]: there is no picture anna/previews/coat_sitting.png, and 1 more"}},
      {{remove("anna/skin/light.png"), remove("anna/skin/dark.png")},
       {"ZV404 character[anna]: there is no picture anna/skin/light.png"}},
      {{without(R"(<material id="blue" name="Blue" preview="blue.png" material="Blue"/>)")},
       {"ZV321 anna/dress/blue.png", "ZV405 character[anna]/cloth/clothing[dress]"}},
      {{without(R"(<material id="red" name="Red" preview="red.png" material="Red"/>)")},
       {"ZV321 anna/coat/red.png", "ZV405 character[anna]/cloth/clothing[coat]"}},
      {{edit(R"( category="hats" material="Felt")", R"( material="Felt")")},
       {"ZV406 character[anna]/assets/asset[hat]"}},
      {{edit(R"(category="hats" material="Felt")", R"(category="hat" material="Felt")")},
       {"ZV407 character[anna]/assets/asset[hat]: hat"}},
      {{without(
           R"(      <matrix poseID="sitting" assetID="hat" xpos="0" ypos="0" zpos="125" xrot="0" yrot="0" zrot="0"/>)")},
       {"ZV408 character[anna]/assets/asset[hat]: sitting"}},
      {{without(R"(<matrix poseID="sitting" assetID="hat" xpos="0" ypos="0" zpos="125" xrot="0" yrot="0" zrot="0"/>)"),
        without(
            R"(<matrix poseID="standing" assetID="hat" xpos="0" ypos="0" zpos="165" xrot="0" yrot="0" zrot="0"/>)")},
       {"ZV409 character[anna]/assets/asset[hat]"}},
      {{edit(R"(folder="bag" type="common")", R"(folder="bag" type="Common")")}, {}},
      {{edit(R"(type="specific" category="things")", R"(type="Specific" category="things")")},
       {"ZV410 character[anna]/assets/asset[scarf]: Specific"}},
      {{without(R"( globalID="bench")")}, {"ZV411 character[anna]/assets/asset[seat]"}},
      {{edit(R"(globalID="bench")", R"(globalID="benches")")}, {"ZV412 character[anna]/assets/asset[seat]: benches"}},
      {{without(R"( type="global")")}, {"ZV413 globalAssets/asset[bench]"}},
      {{edit("</globalAssets>",
             R"(<asset id="car" name="Car" folder="bench" type="global" material="Oak"/></globalAssets>)")},
       {"ZV414 globalAssets/asset[car]"}},
      {{edit(R"(globalID="bench")", R"(globalID="bench" folder="bench")")},
       {"ZV415 character[anna]/assets/asset[seat]: \"folder\""}},
      {{edit(R"(<exclude id="hat"/>)", R"(<exclude/>)")}, {"ZV416 character[anna]/cloth/clothing[dress]/exclude"}},
      {{edit(R"(<exclude id="hat"/>)", R"(<exclude id="hatt"/>)")},
       {"ZV417 character[anna]/cloth/clothing[dress]/exclude[hatt]: hatt"}},
      {{edit(R"(<exclude id="hat"/>)", R"(<exclude id="bag"/>)")},
       {"ZV418 character[anna]/cloth/clothing[dress]/select: bag"}},
      {{edit(R"(<select asset_id="bag" )", R"(<select )")}, {"ZV419 character[anna]/cloth/clothing[dress]/select"}},
      {{edit(R"(asset_id="bag")", R"(asset_id="bags")")}, {"ZV420 character[anna]/cloth/clothing[dress]/select: bags"}},
      {{edit(R"(material_id="canvas")", R"(material_id="silk")")},
       {"ZV421 character[anna]/cloth/clothing[dress]/select: silk"}},
      {{without(R"( material_id="canvas")")}, {"ZV422 character[anna]/cloth/clothing[dress]/select: bag"}},
      {{edit("</clothing>", R"(<select asset_id="hat"/><select asset_id="cap"/></clothing>)")},
       {"ZV423 character[anna]/cloth/clothing[coat]/select: Hats"}},
      {{edit("</clothing>", R"(<select asset_id="seat" material_id="oak"/></clothing>)")},
       {"ZV424 character[anna]/cloth/clothing[coat]/select: Hats"}},
      {{edit(R"(selection="multiple")", R"(selection="Multiple")")},
       {"ZV425 character[anna]/categories/category[things]: selection"}},
      {{without(R"(<asset id="cap" name="Cap" folder="cap" type="specific" category="hats" material="Wool"/>)"),
        remove("anna/cap"),
        without(R"(<matrix poseID="sitting" assetID="hat" xpos="0" ypos="0" zpos="125" xrot="0" yrot="0" zrot="0"/>)")},
       {"ZV426 character[anna]/categories/category[hats]: sitting",
        "ZV408 character[anna]/assets/asset[hat]: sitting"}},
      {{edit("</categories>", R"(<category id="more" name="More"/></categories>)")},
       {"ZV427 character[anna]/categories/category[more]"}},
      {{edit("https://shop.example/?pose=1", "shop.example/?pose=1")},
       {"ZV428 character[anna]/poses/pose[standing]: shop.example/?pose=1"}},
      {{edit("https://shop.example/?pose=1", "https://shop.example/1")},
       {"ZV429 character[anna]/poses/pose[standing]: https://shop.example/1"}},
      {{without(R"( url="https://shop.example/?pose=2")"), remove("anna/coat/coat_sitting.vrmesh")},
       {"ZV312 character[anna]/cloth/clothing[coat]: anna/coat/coat_sitting.vrmesh",
        "ZV430 character[anna]/poses/pose[sitting]"}},
      {{edit(R"(id="red")", R"(id="red" url="https://shop.example/")")},
       {"ZV431 character[anna]/cloth/clothing[coat]/material[red]: style"}},
      {{edit("</clothing>", R"(<exclude id="hat"/></clothing>)")}, {"ZV432 character[anna]/assets/asset[hat]"}},
  };
}

std::vector<Case> buildCases() {
  const std::string chair = R"(<asset id="chair"/>)";
  return {
      {{without(R"( name="Standing")")}, {"ZV501 character[anna]/poses/pose[standing]"}},
      {{without(R"( name="Coat")")}, {"ZV502 character[anna]/cloth/clothing[coat]"}},
      {{without(R"( name="Hat")")}, {"ZV503 character[anna]/assets/asset[hat]: name"}},
      {{edit(chair, "<asset/>")}, {"ZV504 character[anna]/poses/pose[sitting]/asset"}},
      {{edit(chair, R"(<asset id="chairs"/>)")}, {"ZV505 character[anna]/poses/pose[sitting]/asset[chairs]: chairs"}},
      {{edit(chair, chair + R"(<asset id="lost"/>)"),
        edit("</assets>", R"(<asset id="lost" name="Lost" type="global" globalID="none"/></assets>)")},
       {"ZV412 character[anna]/assets/asset[lost]: none"}},
      {{without(R"(<matrix poseID="sitting" assetID="chair" xpos="0" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>)")},
       {"ZV507 character[anna]/poses/pose[sitting]/asset[chair]: chair"}},
      {{edit(chair, chair + R"(<asset id="box"/>)"),
        edit("</AssetMatrix>", R"(<matrix poseID="sitting" assetID="box"/></AssetMatrix>)"),
        edit("</assets>", R"(<asset id="box" name="Box" folder="bag" type="common"><material id="canvas" name="Canvas"
                                preview="canvas.png" material="Canvas"/></asset></assets>)")},
       {"ZV508 character[anna]/poses/pose[sitting]/asset[box]: box"}},
      {{edit(R"(type="common" material="Oak")", R"(type="common" material="Oak" category="things")"),
        edit("</AssetMatrix>", R"(<matrix poseID="standing" assetID="chair"/></AssetMatrix>)"),
        picture("anna/chair/preview.png", 150, 150)},
       {"ZV509 character[anna]/poses/pose[sitting]/asset[chair]: chair"}},
      {{edit(R"(<exclude id="hat"/>)", R"(<exclude id="hat"/><exclude id="chair"/>)")},
       {"ZV510 character[anna]/poses/pose[sitting]/asset[chair]: chair"}},
      {{without(R"( material="Light")")}, {"ZV511 character[anna]/skins/skin[light]: skin"}},
      {{edit(R"(material="Felt")", R"(material="Silk")")}, {"ZV512 character[anna]/assets/asset[hat]: Silk"}},
      {{remove("anna/props.mat")},
       {"ZV512 character[anna]/assets/asset[hat]: Felt", "ZV512 character[anna]/assets/asset[chair]: Oak"}},
      {{write("anna/dress/materials.mat", "{")}, {"ZV514 anna/dress/materials.mat"}},
      {{write("anna/dress/materials.mat", std::string("\x01\0\x02", 3))}, {"ZV515 : 1"}},
      {{write("anna/bag/materials.mat",
              support::materialLibrary(support::texturedMaterial("Canvas", "Canvas.png") + "," +
                                       support::texturedMaterial("Leather", "Leather.png") + "," +
                                       support::texturedMaterial("Wool", "D:\\\\textures\\\\Oak.png"))),
        edit(R"(preview="leather.png" material="Leather")", R"(preview="leather.png" material="Wool")")},
       {"ZV516 character[anna]/assets/asset[scarf]: Wool"}},
      {{remove("maps/Red.png")}, {"ZV517 character[anna]/cloth/clothing[coat]/material[red]: Red"}},
      {{write("anna/coat/materials.mat",
              support::materialLibrary(support::texturedMaterial("Red", "D:\\\\other\\\\Blue.png")))},
       {"ZV518 character[anna]/cloth/clothing[dress]/material[blue]: D:\\other\\Blue.png"}},
      {{write("anna/coat/materials.mat", support::materialLibrary(SCALED)), remove("maps/Red.png")},
       {"ZV519 character[anna]/cloth/clothing[coat]/material[red]: Red"}},
  };
}

std::vector<Case> allCases() {
  std::vector<Case> all;
  for (const auto& part : {readingCases(), idCases(), fileCases(), offerCases(), buildCases()}) {
    all.insert(all.end(), part.begin(), part.end());
  }
  return all;
}

TEST(Rules, FindNothingWhereNothingIsMissing) {
  EXPECT_THAT(shortForm(CompleteRepository().check()), IsEmpty());
  EXPECT_THAT(shortForm(CompleteRepository().check("D:\\people\\")), IsEmpty());
}

TEST(Rules, FindOneCauseOnce) {
  for (const Case& one : allCases()) {
    const CompleteRepository repository;
    for (const Edit& edit : one.edits) edit(repository);
    EXPECT_THAT(shortForm(repository.check()), ElementsAreArray(one.findings));
  }
}

TEST(Rules, MeasureAgainstTheRootOfTheArtists) {
  const CompleteRepository repository;
  EXPECT_THAT(shortForm(repository.check("D:\\people")), ElementsAre("ZV330 : D:\\people"));
  EXPECT_THAT(shortForm(repository.check("D:\\\u0142\u00f3d\u017a\\")),
              ElementsAre("ZV328 : D:\\\u0142\u00f3d\u017a\\"));
  const std::string root = "D:\\" + std::string(222, 'x') + '\\';
  EXPECT_THAT(shortForm(repository.check(root)), ElementsAre("ZV319 global_assets/bench/materials.mat: " + root));
}

TEST(Rules, AllHaveACase) {
  // One library of 3ds Max may hold materials and maps; the open form has no maps of their own.
  std::set<std::string> found = {"ZV513", "ZV319", "ZV328", "ZV330"};
  for (const Case& one : allCases()) {
    for (const std::string& finding : one.findings) found.insert(finding.substr(0, 5));
  }
  for (const check::Rule& rule : check::allRules()) {
    EXPECT_EQ(found.count(rule.code), 1U) << rule.code;
    EXPECT_EQ(std::string(rule.remedy).find('{'), std::string::npos) << "nothing fills it in: " << rule.remedy;
  }
}

}  // namespace
