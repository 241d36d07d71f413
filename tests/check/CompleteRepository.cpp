#include "tests/check/CompleteRepository.h"

#include <sys/stat.h>

#include <regex>
#include <stdexcept>

#include "tests/support/PictureFiles.h"
#include "tests/support/SmallRepository.h"

namespace support {

namespace fs = std::filesystem;

namespace {

const char* const DESCRIPTION = R"(<?xml version="1.0" encoding="UTF-8"?>
<zorvel>
  <globalAssets>
    <asset id="bench" name="Bench" folder="bench" type="global">
      <material id="oak" name="Oak" preview="oak.png" material="Oak"/>
      <material id="pine" name="Pine" preview="pine.png" material="Pine"/>
    </asset>
  </globalAssets>
  <character id="anna" name="Anna" folder="anna">
    <skins name="Skin">
      <skin id="light" name="Light" preview="light.png" material="Light"/>
      <skin id="dark" name="Dark" preview="dark.png" material="Dark"/>
    </skins>
    <cloth name="Style">
      <clothing id="coat" name="Coat" folder="coat">
        <material id="red" name="Red" preview="red.png" material="Red"/>
      </clothing>
      <clothing id="dress" name="Dress" folder="dress">
        <material id="blue" name="Blue" preview="blue.png" material="Blue"/>
        <exclude id="hat"/>
        <select asset_id="bag" material_id="canvas"/>
      </clothing>
    </cloth>
    <poses name="Pose">
      <pose id="standing" name="Standing" folder="standing" url="https://shop.example/?pose=1"/>
      <pose id="sitting" name="Sitting" folder="sitting" url="https://shop.example/?pose=2"><asset id="chair"/></pose>
    </poses>
    <categories>
      <category id="things" name="Things" selection="multiple" required="false"/>
      <category id="hats" name="Hats" selection="single" required="true"/>
    </categories>
    <assets>
      <asset id="bag" name="Bag" folder="bag" type="common" category="things">
        <material id="canvas" name="Canvas" preview="canvas.png" material="Canvas"/>
        <material id="leather" name="Leather" preview="leather.png" material="Leather"/>
      </asset>
      <asset id="scarf" name="Scarf" folder="scarf" type="specific" category="things" material="Wool"/>
      <asset id="seat" name="Bench" type="global" globalID="bench" category="things"/>
      <asset id="hat" name="Hat" folder="hat" type="common" category="hats" material="Felt"/>
      <asset id="cap" name="Cap" folder="cap" type="specific" category="hats" material="Wool"/>
      <asset id="chair" name="Chair" folder="chair" type="common" material="Oak"/>
    </assets>
    <AssetMatrix>
      <matrix poseID="standing" assetID="bag" xpos="20" ypos="0" zpos="80.5" xrot="0" yrot="0" zrot="90"/>
      <matrix poseID="sitting" assetID="bag" xpos="20" ypos="0" zpos="40" xrot="0" yrot="0" zrot="90"/>
      <matrix poseID="standing" assetID="seat" xpos="0" ypos="90" zpos="0" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="sitting" assetID="seat" xpos="0" ypos="90" zpos="0" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="standing" assetID="hat" xpos="0" ypos="0" zpos="165" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="sitting" assetID="hat" xpos="0" ypos="0" zpos="125" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="sitting" assetID="chair" xpos="0" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>
    </AssetMatrix>
  </character>
</zorvel>
)";

std::string library(const std::vector<std::string>& names) {
  std::string materials;
  for (const std::string& name : names) {
    materials += (materials.empty() ? "" : ", ") + texturedMaterial(name, "D:\\\\textures\\\\" + name + ".png");
  }
  return materialLibrary(materials);
}

struct Picture {
  const char* file;
  QSize size;
};

void writePictures(const TemporaryFolder& folder) {
  for (const Picture& picture : {Picture{"overlay110x330.png", {110, 330}},
                                 {"overlay100x300.png", {100, 300}},
                                 {"anna/previews/preview_coat.png", {110, 330}},
                                 {"anna/previews/preview_dress.png", {110, 330}},
                                 {"anna/previews/coat_standing.png", {100, 300}},
                                 {"anna/previews/coat_sitting.png", {100, 300}},
                                 {"anna/previews/dress_standing.png", {100, 300}},
                                 {"anna/previews/dress_sitting.png", {100, 300}},
                                 {"anna/coat/red.png", {100, 300}},
                                 {"anna/dress/blue.png", {100, 300}},
                                 {"anna/skin/light.png", {150, 150}},
                                 {"anna/skin/dark.png", {150, 150}},
                                 {"anna/bag/canvas.png", {150, 150}},
                                 {"anna/bag/leather.png", {150, 150}},
                                 {"anna/scarf/preview.png", {150, 150}},
                                 {"anna/hat/preview.png", {150, 150}},
                                 {"anna/cap/preview.png", {150, 150}},
                                 {"global_assets/bench/oak.png", {150, 150}},
                                 {"global_assets/bench/pine.png", {150, 150}}}) {
    support::writePicture(folder, picture.file, picture.size);
  }
  for (const char* name : {"Light", "Dark", "Red", "Blue", "Canvas", "Leather", "Wool", "Felt", "Oak", "Pine"}) {
    support::writePicture(folder, std::string("maps/") + name + ".png", {2, 2});
  }
}

void writeMeshes(const TemporaryFolder& folder) {
  for (const char* body : {"anna/standing/pose", "anna/sitting/pose", "anna/coat/coat_standing",
                           "anna/coat/coat_sitting", "anna/dress/dress_standing", "anna/dress/dress_sitting"}) {
    folder.write(std::string(body) + ".vrmesh", boxObj(40, 20, 170));
  }
  for (const char* thing :
       {"anna/bag/asset", "anna/hat/asset", "anna/chair/asset", "anna/scarf/standing", "anna/scarf/sitting",
        "anna/cap/standing", "anna/cap/sitting", "global_assets/bench/asset"}) {
    folder.write(std::string(thing) + ".vrmesh", boxObj(30, 20, 40));
  }
}

void writeLibraries(const TemporaryFolder& folder) {
  folder.write("anna/skin/skin.mat", library({"Light", "Dark"}));
  folder.write("anna/coat/materials.mat", library({"Red"}));
  folder.write("anna/dress/materials.mat", library({"Blue"}));
  folder.write("anna/bag/materials.mat", library({"Canvas", "Leather"}));
  folder.write("anna/materials.mat", library({"Wool"}));
  folder.write("anna/props.mat", library({"Felt", "Oak"}));
  folder.write("global_assets/bench/materials.mat", library({"Pine"}));
  folder.write("global_assets/materials.mat", library({"Oak"}));
}

const TemporaryFolder& original() {
  static const TemporaryFolder folder;
  static const bool isWritten = [] {
    folder.write("zorvel.xml", DESCRIPTION);
    writePictures(folder);
    writeMeshes(folder);
    writeLibraries(folder);
    return true;
  }();
  (void)isWritten;
  return folder;
}

}  // namespace

CompleteRepository::CompleteRepository() { fs::copy(original().path(), folder_.path(), fs::copy_options::recursive); }

void CompleteRepository::edit(const std::string& from, const std::string& to) const {
  folder_.edit("zorvel.xml", from, to);
}

void CompleteRepository::writePicture(const std::string& file, int width, int height) const {
  support::writePicture(folder_, file, {width, height});
}

void CompleteRepository::remove(const std::string& file) const {
  if (fs::remove_all(folder_.path() / file) == 0) throw std::runtime_error("there is no " + file);
}

void CompleteRepository::rename(const std::string& from, const std::string& to) const {
  fs::rename(folder_.path() / from, folder_.path() / to);
}

void CompleteRepository::renameAll(const std::string& from, const std::string& to) const {
  const std::regex pattern(from);
  folder_.write("zorvel.xml", std::regex_replace(folder_.read("zorvel.xml"), pattern, to));
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder_.path())) files.push_back(entry.path());
  // Those inside a folder before it.
  for (auto file = files.rbegin(); file != files.rend(); ++file) {
    fs::rename(*file, file->parent_path() / std::regex_replace(file->filename().string(), pattern, to));
  }
}

void CompleteRepository::replaceByPipe(const std::string& file) const {
  remove(file);
  if (mkfifo((folder_.path() / file).c_str(), 0600) != 0) throw std::runtime_error("no pipe " + file);
}

check::CheckResult CompleteRepository::check(const std::string& targetRoot) const {
  check::CheckerOptions options;
  options.targetRoot = targetRoot;
  return check::checkRepository(folder_.path(), options);
}

std::vector<std::string> shortForm(const check::CheckResult& result) {
  std::vector<std::string> texts;
  for (const check::Finding& finding : result.findings) {
    const std::string place = finding.element.empty() ? finding.file : finding.element;
    texts.push_back(std::string(check::ruleOf(finding.rule).code) + ' ' + place +
                    (finding.subject.empty() || finding.subject == place ? "" : ": " + finding.subject));
  }
  return texts;
}

}  // namespace support
