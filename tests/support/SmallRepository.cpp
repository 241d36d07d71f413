#include "tests/support/SmallRepository.h"

#include <numeric>
#include <sstream>

#include "tests/support/PictureFiles.h"

namespace support {

namespace {

const char* const DESCRIPTION = R"(<?xml version="1.0" encoding="UTF-8"?>
<zorvel>
  <globalAssets>
    <asset id="g1" name="Bench" folder="bench" type="global">
      <material id="g1m1" name="Oak" material="Oak" preview="oak.png"/>
    </asset>
  </globalAssets>
  <character id="c1" name="Anna" folder="anna">
    <skins name="Skin"><skin id="s1" name="Light" material="Skin light" preview="light.png"/></skins>
    <cloth name="Clothing">
      <clothing id="k1" name="Summer" folder="summer">
        <material id="k1m1" name="Blue" material="Blue" preview="blue.png"/>
        <material id="k1m2" name="Props" material="From props" preview="props.png"/>
        <material id="k1m3" name="Lost" material="Nowhere" preview="lost.png"/>
        <exclude id="a3"/>
      </clothing>
    </cloth>
    <poses name="Pose">
      <pose id="p1" name="Standing" folder="standing"><asset id="a2"/><asset id="gone"/></pose>
      <pose id="p2" name="Walking" folder="walking"/>
    </poses>
    <categories>
      <category id="t1" name="Things" selection="multiple" required="false"/>
      <category id="t2" name="Hats" selection="single" required="true"/>
    </categories>
    <assets>
      <asset id="a1" name="Bag" folder="bag" type="common" category="t1" material="Leather">
        <material id="a1m1" name="Cloth" material="Canvas" preview="canvas.png"/>
      </asset>
      <asset id="a2" name="Seat" folder="seat" type="common" category="t1" material="Oak"/>
      <asset id="a3" name="Hat" folder="hat" type="common" category="t2" material="Leather"/>
      <asset id="a4" name="Scarf" folder="scarf" type="specific" category="t1" material="Blue"/>
      <asset id="a5" name="Bench" type="global" globalID="g1" category="t1"/>
      <asset id="a6" name="Lamp" folder="lamp" type="common" category="t1" material="Leather"/>
    </assets>
    <AssetMatrix>
      <matrix poseID="p1" assetID="a1" xpos="10" ypos="0" zpos="0" xrot="90" yrot="90" zrot="90"/>
      <matrix poseID="p1" assetID="a2" xpos="0" ypos="-20" zpos="5" xrot="0" yrot="0" zrot="90"/>
      <matrix poseID="p1" assetID="a5" xpos="100" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>
    </AssetMatrix>
  </character>
</zorvel>
)";

void writeMeshes(const TemporaryFolder& folder) {
  const std::string person = boxObj(40, 20, 170);
  folder.write("anna/standing/pose.vrmesh", person);
  folder.write("anna/walking/pose.vrmesh", person);
  for (const char* pose : {"p1", "p2"}) {
    folder.write(std::string("anna/summer/k1_") + pose + ".vrmesh", boxObj(44, 24, 120));
    folder.write(std::string("anna/scarf/") + pose + ".vrmesh", boxObj(20, 20, 10));
  }
  for (const char* asset : {"anna/bag", "anna/seat", "anna/hat", "anna/lamp", "global_assets/bench"}) {
    folder.write(std::string(asset) + "/asset.vrmesh", boxObj(30, 10, 20));
  }
}

void writeMaterials(const TemporaryFolder& folder) {
  folder.write("anna/skin/skin.mat", materialLibrary(texturedMaterial("Skin light", "C:\\\\x\\\\skin_d.png")));
  folder.write("anna/summer/materials.mat", materialLibrary(texturedMaterial("Blue", "D:\\\\maps\\\\blue.png")));
  folder.write("anna/materials.mat", materialLibrary(texturedMaterial("Canvas", "canvas.png")));
  folder.write("anna/props.mat", materialLibrary(texturedMaterial("From props", "props.png")));
  folder.write("anna/bag/materials.mat", materialLibrary(texturedMaterial("Leather", "leather.png")));
  folder.write("anna/seat/materials.mat", materialLibrary(texturedMaterial("Oak", "oak.png")));
  folder.write("global_assets/materials.mat", materialLibrary(texturedMaterial("Oak", "oak.png")));
}

/// Another one for each file, the same each time.
QColor colorFor(const std::string& file) {
  return QColor::fromHsv(static_cast<int>(std::accumulate(file.begin(), file.end(), 0U) % 360U), 120, 200);
}

}  // namespace

SmallRepository::SmallRepository() {
  folder_.write("zorvel.xml", DESCRIPTION);
  folder_.write("anna/previews/preview_k1.png", "");
  writeMeshes(folder_);
  writeMaterials(folder_);
}

void SmallRepository::edit(const std::string& from, const std::string& to) const {
  folder_.edit("zorvel.xml", from, to);
}

void SmallRepository::mend() const {
  edit(R"(<asset id="gone"/>)", "");
  for (const char* name : {"skin_d.png", "blue.png", "canvas.png", "props.png", "leather.png", "oak.png"}) {
    writePicture(folder_, std::string("maps/") + name, {1, 1}, Qt::gray);
  }
}

void SmallRepository::writePictures() const {
  const std::string preview = "anna/previews/preview_k1.png";
  writePicture(folder_, preview, {110, 330}, colorFor(preview));
  for (const char* file : {"anna/previews/k1_p1.png", "anna/previews/k1_p2.png", "anna/summer/blue.png",
                           "anna/summer/props.png", "anna/summer/lost.png"}) {
    writePicture(folder_, file, {100, 300}, colorFor(file));
  }
  for (const char* file :
       {"anna/skin/light.png", "anna/bag/canvas.png", "anna/seat/preview.png", "anna/hat/preview.png",
        "anna/scarf/preview.png", "anna/lamp/preview.png", "global_assets/bench/oak.png"}) {
    writePicture(folder_, file, {150, 150}, colorFor(file));
  }
}

std::string boxObj(float width, float depth, float height) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  for (const float z : {0.0F, height}) {
    for (const float y : {-depth / 2, depth / 2}) {
      for (const float x : {-width / 2, width / 2}) text << "v " << x << ' ' << y << ' ' << z << '\n';
    }
  }
  text << "f 1 3 4 2\nf 5 6 8 7\nf 1 2 6 5\nf 4 3 7 8\nf 2 4 8 6\nf 3 1 5 7\n";
  return text.str();
}

std::string materialLibrary(const std::string& materials) {
  return R"({"format": "zorvel-material-library", "version": 1, "materials": [)" + materials + "]}";
}

std::string texturedMaterial(const std::string& name, const std::string& file) {
  return R"({"name": ")" + name +
         R"(", "class": "standard", "blocks": [[{"id": 0, "type": "color", "value": [1, 1, 1]}]],
    "subTextures": [null, {"class": "bitmap", "file": ")" +
         file + R"("}]})";
}

}  // namespace support
