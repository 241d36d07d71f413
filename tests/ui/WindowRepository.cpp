#include "tests/ui/WindowRepository.h"

#include "tests/support/PictureFiles.h"
#include "tests/support/SmallRepository.h"

namespace support {

namespace {

const char* const ANNA = R"(<?xml version="1.0" encoding="UTF-8"?>
<zorvel>
  <globalAssets>
    <asset id="g1" name="Bench" folder="bench" type="global">
      <material id="g1m1" name="Oak" preview="oak.png" material="Oak"/>
      <material id="g1m2" name="Pine" preview="pine.png" material="Oak"/>
    </asset>
  </globalAssets>
  <character id="c1" name="Anna" folder="anna">
    <skins name="Skin">
      <skin id="s1" name="Light" preview="light.png" material="Skin"/>
      <skin id="s2" name="Dark" preview="dark.png" material="Skin"/>
      <skin id="s3" name="Unseen" preview="unseen.png" material="Skin"/>
    </skins>
    <cloth name="Fabric">
      <clothing id="ka" name="Apron" folder="apron"/>
      <clothing id="kb" name="Blouse" folder="blouse">
        <material id="m1" name="Red" preview="red.png" material="Red"/>
        <material id="m2" name="Green" preview="green.png" material="Red"/>
        <select asset_id="a2"/><select asset_id="a5"/><select asset_id="a8" material_id="g1m2"/>
        <exclude id="a9"/>
      </clothing>
      <clothing id="kc" name="Coat" folder="coat"/>
      <clothing id="kd" name="Dress" folder="dress"/>
    </cloth>
    <poses name="Pose">
      <pose id="p2" name="Walking" folder="walking" url="https://shop.example/pose?n=2"/>
      <pose id="p1" name="Standing" folder="standing" url="https://shop.example/pose?n=1"/>
      <pose id="p3" name="Sitting" folder="sitting" url="https://shop.example/pose?n=3"/>
      <pose id="p4" name="Unseen" folder="standing"/>
      <pose id="p5" name="Lost" folder="lost"/>
    </poses>
    <categories>
      <category id="t1" name="Things" selection="multiple" required="false"/>
      <category id="t2" name="Hats" selection="single" required="true"/>
      <category id="t3" name="Empty" selection="single" required="true"/>
      <category id="t4" name="Shoes" selection="single" required="false"/>
      <category id="t5" name="Seats" selection="multiple" required="false"/>
      <category id="t6" name="Gloves" selection="single" required="true"/>
    </categories>
    <assets>
      <asset id="a1" name="Bag" folder="bag" type="specific" category="t1">
        <material id="a1m1" name="Canvas" preview="canvas.png" material="Red"/>
        <material id="a1m2" name="Leather" preview="leather.png" material="Red"/>
      </asset>
      <asset id="a2" name="Scarf" folder="scarf" type="specific" category="t1" material="Red"/>
      <asset id="a3" name="Lamp" folder="lamp" type="common" category="t1" material="Red"/>
      <asset id="a4" name="Cap" folder="cap" type="specific" category="t2" material="Red"/>
      <asset id="a5" name="Bowler" folder="bowler" type="specific" category="t2" material="Red"/>
      <asset id="a6" name="Boot" folder="boot" type="specific" category="t4" material="Red"/>
      <asset id="a7" name="Clog" folder="clog" type="specific" category="t4" material="Red"/>
      <asset id="a8" name="Bench" type="global" globalID="g1" category="t5"/>
      <asset id="a9" name="Mitten" folder="mitten" type="specific" category="t6" material="Red"/>
    </assets>
    <AssetMatrix>
      <matrix poseID="p1" assetID="a3" xpos="0" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="p1" assetID="a8" xpos="0" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>
      <matrix poseID="p3" assetID="a8" xpos="0" ypos="0" zpos="0" xrot="0" yrot="0" zrot="0"/>
    </AssetMatrix>
  </character>
)";

std::string ben() {
  std::string text = "<character id=\"c2\" name=\"Ben\" folder=\"ben\"><cloth name=\"Fabric\">";
  for (char i = '1'; i <= '7'; ++i) {
    text += std::string("<clothing id=\"k") + i + "\" name=\"Number " + i + "\" folder=\"clothes\"/>";
  }
  return text + "</cloth></character></zorvel>";
}

}  // namespace

WindowRepository::WindowRepository() {
  folder_.write("zorvel.xml", ANNA + ben());
  writePicture("overlay110x330.png", QSize(110, 20), Qt::green);
  writePicture("overlay100x300.png", QSize(100, 20), Qt::blue);
  writeAnna();
  writeBen();
}

void WindowRepository::writeAnna() const {
  for (const char* id : {"ka", "kb", "kc", "kd"}) {
    writePicture(std::string("anna/previews/preview_") + id + ".png", QSize(110, 330), Qt::red);
    for (const char* pose : {"p1", "p2", "p3", "p5"}) {
      writePicture(std::string("anna/previews/") + id + "_" + pose + ".png", QSize(100, 300), Qt::red);
    }
  }
  for (const char* picture :
       {"anna/skin/light", "anna/skin/dark", "anna/bag/canvas", "anna/bag/leather", "anna/scarf/preview",
        "anna/lamp/preview", "anna/cap/preview", "anna/bowler/preview", "anna/boot/preview", "anna/clog/preview",
        "anna/mitten/preview", "global_assets/bench/oak", "global_assets/bench/pine"}) {
    writePicture(std::string(picture) + ".png", QSize(150, 150), Qt::red);
  }
  for (const char* material : {"red", "green"}) {
    writePicture(std::string("anna/blouse/") + material + ".png", QSize(100, 300), Qt::red);
  }
  for (const char* file : {"standing/pose", "sitting/pose", "walking/pose", "blouse/kb_p1", "blouse/kb_p3",
                           "dress/kd_p1", "scarf/p1", "bowler/p1"}) {
    folder_.write(std::string("anna/") + file + ".vrmesh", boxObj(40, 20, 170));
  }
  folder_.write("global_assets/bench/asset.vrmesh", boxObj(40, 20, 50));
}

void WindowRepository::writeBen() const {
  folder_.makeFolder("ben/skin");
  folder_.makeFolder("ben/clothes");
  for (char i = '1'; i <= '7'; ++i) {
    writePicture(std::string("ben/previews/preview_k") + i + ".png", QSize(110, 330), Qt::green);
  }
}

void WindowRepository::writePicture(const std::filesystem::path& relative, const QSize& size,
                                    const QColor& color) const {
  support::writePicture(folder_, relative.string(), size, color);
}

void WindowRepository::remove(const std::filesystem::path& relative) const {
  std::filesystem::remove_all(folder_.path() / relative);
}

}  // namespace support
