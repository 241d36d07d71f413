#include "tests/check/WearRepository.h"

#include "tests/support/PictureFiles.h"

namespace support {

WearRepository::WearRepository() {
  small_.mend();
  small_.writePictures();
  // What no clothing selects needs no style that is found nowhere, and no asset.
  small_.edit(R"(<material id="k1m3" name="Lost" material="Nowhere" preview="lost.png"/>)", "");
  small_.edit(R"(<asset id="a2"/>)", "");

  addPose(R"(id="nofolder" name="x" folder="gone")");
  addPose(R"(id="nobody" name="x" folder="nobody")");
  addPose(R"(id="noname" folder="noname")");
  addPose(R"(id="p1" name="x" folder="standing")");
  addPose(R"(name="x" folder="standing")");
  addPose(R"(id="folderempty" name="x" folder="")");
  addPose(R"(id="damaged" name="x" folder="damaged")");
  folder().makeFolder("anna/nobody");
  folder().write("anna/noname/pose.vrmesh", boxObj(40, 20, 170));
  folder().write("anna/damaged/pose.vrmesh", "no mesh");

  addClothing(R"(id="nofolder" name="x" folder="gone")");
  addClothing(R"(id="dropped" name="x" folder="summer")");
  addClothing(R"(id="k1" name="x" folder="summer")");
  addClothing(R"(name="x" folder="summer")");
  addClothing(R"(id="folderunnamed" name="x")");
  addClothing(R"(id="folderempty" name="x" folder="")");
  addClothing(R"(id="noname" folder="noname")");
  addClothing(R"(id="nostyle" name="x" folder="nostyle")", false);
  addClothing(R"(id="some" name="x" folder="some")");
  addClothing(R"(id="none" name="x" folder="none")");
  for (const char* clothing : {"k1", "nofolder", "folderunnamed", "folderempty", "noname", "nostyle", "some", "none"}) {
    addPictures(clothing);
  }
  addMeshes("k1", "summer/");
  addMeshes("folderunnamed", "");
  addMeshes("folderempty", "");
  addMeshes("noname", "noname/");
  addMeshes("nostyle", "nostyle/");
  addMeshes("some", "some/");
  std::filesystem::remove(folder().path() / "anna/some/some_p1.vrmesh");
  std::filesystem::remove(folder().path() / "anna/previews/some_p2.png");
  folder().makeFolder("anna/none");
}

void WearRepository::addClothing(const std::string& attributes, bool hasStyle) {
  const std::string style = R"(<material id="style" name="x" material="From props" preview="props.png"/>)";
  small_.edit("</cloth>", "<clothing " + attributes + '>' + (hasStyle ? style : "") + "</clothing></cloth>");
}

void WearRepository::addPose(const std::string& attributes) {
  small_.edit("</poses>", "<pose " + attributes + "/></poses>");
  if (attributes.rfind("id=\"p1\"", 0) == 0 || attributes.rfind("id=", 0) != 0) return;
  poses_.push_back(attributes.substr(4, attributes.find('"', 4) - 4));
}

void WearRepository::addMeshes(const std::string& clothing, const std::string& folder) const {
  for (const std::string& pose : poses_) {
    small_.folder().write("anna/" + folder + clothing + '_' + pose + ".vrmesh", boxObj(44, 24, 120));
  }
}

void WearRepository::addPictures(const std::string& clothing) const {
  writePicture(folder(), "anna/previews/preview_" + clothing + ".png", {110, 330});
  for (const std::string& pose : poses_) {
    writePicture(folder(), "anna/previews/" + clothing + '_' + pose + ".png", {100, 300});
  }
}

}  // namespace support
