#include "tests/growth/GrowthCases.h"

#include <filesystem>

namespace support {

namespace {

namespace fs = std::filesystem;

/// `form` with each @ replaced by the number of the repetition.
std::string numbered(const std::string& form, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) {
    for (const char c : form) {
      if (c == '@') {
        all += std::to_string(i);
      } else {
        all += c;
      }
    }
  }
  return all;
}

std::string repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// So many of the form at the end of the first such list.
void addTo(const CompleteRepository& repository, const std::string& list, const std::string& form, int count) {
  repository.edit("</" + list + ">", numbered(form, count) + "</" + list + ">");
}

void addAttributes(const CompleteRepository& repository, int count) {
  repository.edit("<assets>", "<assets " + numbered("a@='' ", count) + ">");
}

void addManyAttributes(const CompleteRepository& repository, int count) {
  addTo(repository, "assets", "<asset id='n@' " + numbered("a@='' ", 90) + "/>", count / 90);
}

void nest(const CompleteRepository& repository, int count) {
  const std::string chain = repeated("<asset folder='a'>", 200) + repeated("</asset>", 200);
  addTo(repository, "assets", chain, count / 200);
}

void useEntities(const CompleteRepository& repository, int count) {
  repository.edit("<zorvel>",
                  "<!DOCTYPE zorvel [<!ENTITY e '" + std::string(1000, 'x') + "'>]><zorvel>" + repeated("&e;", count));
}

void nameDifferently(const CompleteRepository& repository, int count) {
  addTo(repository, "assets", "<asset@ id='x'/>", count);
}

void nameMissingFiles(const CompleteRepository& repository, int count) {
  addTo(repository, "assets", "<asset id='n@' folder='folder@' category='things' type='common'/>", count);
}

void nameDeepFolders(const CompleteRepository& repository, int count) {
  const std::string deep = repeated("d/", 1000);
  fs::create_directories(repository.folder().path() / "anna" / deep);
  addTo(repository, "assets", "<asset id='n@' folder='" + deep + "x@'/>", count);
}

void nameOneFolderDifferently(const CompleteRepository& repository, int count) {
  std::string assets;
  for (int i = 0; i < count; ++i) {
    std::string folder = "bag";
    for (int bits = i; bits > 0; bits /= 2) folder += bits % 2 == 1 ? "/." : "//";
    assets += "<asset id='n" + std::to_string(i) + "' folder='" + folder + "' type='specific' material='Canvas' " +
              "category='things'/>";
  }
  repository.edit("</assets>", assets + "</assets>");
}

void repeatIds(const CompleteRepository& repository, int count) {
  addTo(repository, "assets", "<asset id='bag' name='Bag' folder='bag' type='common' category='things'/>", count);
}

void leaveIdsOut(const CompleteRepository& repository, int count) {
  addTo(repository, "categories", "<category name='c@'/>", count);
  addTo(repository, "assets", "<asset id='n@' category='none@' type='common' folder='bag'/>", count);
}

void addRows(const CompleteRepository& repository, int count) {
  addTo(repository, "AssetMatrix", "<matrix poseID='standing' assetID='none@' xpos='1'/>", count);
}

void addBrokenRows(const CompleteRepository& repository, int count) {
  addTo(repository, "AssetMatrix", "<matrix poseID='p@'/>", count);
}

void addMaterials(const CompleteRepository& repository, int count) {
  repository.edit("<material id=\"canvas\"",
                  numbered("<material id='m@' name='M' preview='canvas.png' material='Canvas'/>", count) +
                      "<material id=\"canvas\"");
}

void addStyles(const CompleteRepository& repository, int count) {
  repository.edit(
      "<material id=\"red\"",
      numbered("<material id='m@' name='M' preview='red.png' material='Red'/>", count) + "<material id=\"red\"");
}

void addSkins(const CompleteRepository& repository, int count) {
  addTo(repository, "skins", "<skin id='s@' name='S' preview='light.png' material='Light'/>", count);
}

void addMandatory(const CompleteRepository& repository, int count) {
  repository.edit("<asset id=\"chair\"/>", numbered("<asset id='chair@'/>", count) + "<asset id=\"chair\"/>");
}

/// Those of a category that takes several, and those of as many that take one.
void select(const CompleteRepository& repository, int count) {
  const std::string asset = " type='specific' material='Wool' category=";
  addTo(repository, "categories", "<category id='one@' selection='single' required='true'/>", count);
  addTo(repository, "assets", "<asset id='n@' folder='scarf'" + asset + "'things'/>", count);
  addTo(repository, "assets", "<asset id='o@' folder='scarf'" + asset + "'one@'/>", count);
  repository.edit("<exclude id=\"hat\"/>", numbered("<select asset_id='n@'/>", count));
}

void dropClothes(const CompleteRepository& repository, int count) {
  addTo(repository, "cloth", "<clothing id='dropped@' folder='coat'/>", count);
  addTo(repository, "zorvel", "<character id='c@' folder='anna'><poses/></character>", count);
}

void wearEverything(const CompleteRepository& repository, int count) {
  addTo(repository, "poses", "<pose id='p@' folder='standing' name='P'/>", count);
  addTo(repository, "cloth", "<clothing id='coat' folder='coat'/>", count);
}

void linkNames(const CompleteRepository& repository, int count) {
  const std::string id(2000, 'x');
  addTo(repository, "poses", "<pose id='" + id + "@' folder='standing' name='P'/>", count);
  addTo(repository, "cloth", "<clothing id='coat' folder='coat'/>", count);
}

void addComments(const CompleteRepository& repository, int count) {
  repository.edit("<zorvel>", "<zorvel>" + repeated("<!-- c --><?p?>", count));
}

void enlargeTexture(const CompleteRepository& repository, int count) {
  repository.writePicture("anna/previews/preview_coat.png", count, count);
}

void addCorners(const CompleteRepository& repository, int count) {
  repository.write("anna/standing/pose.vrmesh",
                   "v 0 0 0\nv 0 0 100\nv 0 100 0\nf 1 2 3\nf" + repeated(" 1 2 3", count / 3) + "\n");
}

void addFaces(const CompleteRepository& repository, int count) {
  repository.write("anna/standing/pose.vrmesh", "v 0 0 0\nv 0 0 100\nv 0 100 0\n" + repeated("f 1 2 3\n", count));
}

void appendNumber(std::string& bytes, std::size_t number) {
  for (unsigned int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>((number >> shift) & 0xFFU);
}

/// A glTF binary of nothing but its JSON.
std::string glbOf(std::string json) {
  while (json.size() % 4 != 0) json += ' ';
  std::string bytes = "glTF";
  for (const std::size_t number : {std::size_t{2}, json.size() + 20, json.size()}) appendNumber(bytes, number);
  return bytes + "JSON" + json;
}

void addInstances(const CompleteRepository& repository, int count) {
  const std::string positions = "AAAAAAAAAAAAAAAAAAAAAAAAyEIAAAAAAADIQgAAAAA=";  // three corners
  repository.write(
      "anna/standing/pose.vrmesh",
      glbOf(
          R"({"asset": {"version": "2.0"}, "buffers": [{"byteLength": 36, "uri": "data:application/octet-stream;base64,)" +
          positions + R"("}], "bufferViews": [{"buffer": 0, "byteLength": 36}], "accessors": [{"bufferView": 0,
 "componentType": 5126, "count": 3, "type": "VEC3", "min": [0, 0, 0], "max": [0, 100, 100]}],
 "meshes": [{"primitives": [{"attributes": {"POSITION": 0}}]}], "scenes": [{"nodes": [0)" +
          numbered(", @", count).substr(3) + R"(]}], "nodes": [)" + repeated(R"({"mesh": 0}, )", count) +
          R"({"mesh": 0}]})"));
}

void addValues(const CompleteRepository& repository, int count) {
  repository.write("anna/skin/skin.mat", R"({"format": "zorvel-material-library", "version": 1, "materials": [)" +
                                             repeated("{}, ", count) + "{}]}");
}

}  // namespace

const std::vector<GrowthCase>& growthCases() {
  static const std::vector<std::string> CHECK = {"check"};
  static const std::vector<std::string> READERS = {"check", "create"};
  static const std::vector<GrowthCase> CASES = {
      {"attributes of one element", 2000, &addAttributes},
      {"attributes of all elements", 50000, &addManyAttributes},
      {"nested elements", 10000, &nest, {"list", "check"}},
      {"references to an entity", 40000, &useEntities},
      {"different names", 10000, &nameDifferently, {"list", "check"}},
      {"missing folders", 5000, &nameMissingFiles},
      {"missing folders, 1000 levels deep", 300, &nameDeepFolders},
      {"ways to write one folder", 4000, &nameOneFolderDifferently},
      {"ids alike", 4000, &repeatIds, {"list", "check", "create", "explain bag"}},
      {"ids left out", 4000, &leaveIdsOut},
      {"rows of the asset matrix", 20000, &addRows, {"list", "check", "create", "check --matrix"}},
      {"broken rows", 10000, &addBrokenRows},
      {"materials of one asset", 4000, &addMaterials},
      {"styles of one clothing", 4000, &addStyles},
      {"skins", 4000, &addSkins},
      {"mandatory assets of one pose", 5000, &addMandatory},
      {"selected assets", 1500, &select},
      {"dropped clothes and characters", 2000, &dropClothes},
      {"clothes and poses", 300, &wearEverything, {"list", "check", "create", "check --matrix"}},
      {"long ids of poses", 100, &linkNames},
      {"comments", 50000, &addComments, {"check"}},
      {"sides of a picture", 1000, &enlargeTexture, CHECK},
      {"corners of a face", 30000, &addCorners, READERS},
      {"faces", 50000, &addFaces, READERS},
      {"instances of a mesh", 2000, &addInstances, READERS},
      {"values of a library", 20000, &addValues, READERS}};
  return CASES;
}

}  // namespace support
