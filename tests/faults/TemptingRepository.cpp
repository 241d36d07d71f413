#include "tests/faults/TemptingRepository.h"

#include <nlohmann/json.hpp>

#include "tests/support/PictureFiles.h"
#include "tests/support/SmallRepository.h"

namespace support {

namespace fs = std::filesystem;
using Json = nlohmann::json;

namespace {

/// A glTF binary whose only buffer and picture are somewhere else.
std::string glbElsewhere(const std::string& buffer, const std::string& picture) {
  const Json document = {{"asset", {{"version", "2.0"}}},
                         {"buffers", {{{"uri", buffer}, {"byteLength", 64}}}},
                         {"images", {{{"uri", picture}}}},
                         {"bufferViews", {{{"buffer", 0}, {"byteLength", 64}}}},
                         {"accessors", {{{"bufferView", 0}, {"componentType", 5126}, {"count", 3}, {"type", "VEC3"}}}},
                         {"meshes", {{{"primitives", {{{"attributes", {{"POSITION", 0}}}}}}}}}};
  std::string text = document.dump();
  text.resize((text.size() + 3) / 4 * 4, ' ');
  const auto number = [](std::size_t value) {
    std::string bytes;
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    return bytes;
  };
  return "glTF" + number(2) + number(20 + text.size()) + number(text.size()) + "JSON" + text;
}

/// Every file that a scene names becomes one of these.
void tempt(Json& json, const std::vector<std::string>& files, std::size_t& next) {
  if (!json.is_structured()) return;
  for (auto& [key, value] : json.items()) {
    const bool isTexture = key == "textures" && value.is_array();
    if (key == "file" && value.is_string()) value = files[next++ % files.size()];
    for (std::size_t i = 0; isTexture && i < value.size(); ++i) value[i] = files[next++ % files.size()];
    if (!isTexture) tempt(value, files, next);
  }
}

}  // namespace

TemptingRepository::TemptingRepository() {
  writePicture(secrets_, "secret.png", {64, 64});
  secrets_.write("secret.vrmesh", boxObj(1, 1, 1));
  secrets_.write("secret.mat", materialLibrary(texturedMaterial("Red", "secret.png")));
  secrets_.write("secret.txt", "secret");
  writeMeshes();
  writeLibraries();
  makeLinks();
  writeEntities();
}

void TemptingRepository::writeMeshes() const {
  const std::string secret = (secrets() / "secret.txt").string();
  repository_.write("anna/standing/pose.vrmesh",
                    "mtllib " + secret + "\nmtllib ../../../../etc/passwd\nusemtl |id\n" + boxObj(40, 20, 170));
  repository_.write("anna/hat/asset.vrmesh", glbElsewhere("file://" + secret, "https://192.0.2.1/picture.png"));
  repository_.write("anna/chair/asset.vrmesh", glbElsewhere("../../../../../../etc/passwd", "//192.0.2.1/share/a.png"));
  repository_.edit(R"(folder="bag")", R"(folder="../../)" + secrets().filename().string() + '"');
}

void TemptingRepository::writeLibraries() const {
  const std::string secret = (secrets() / "secret.png").string();
  const auto with = [](const std::string& name, const std::string& file) { return texturedMaterial(name, file); };
  repository_.write("anna/skin/skin.mat", materialLibrary(with("Light", secret) + ", " + with("Dark", "/etc/passwd")));
  repository_.write("anna/coat/materials.mat", materialLibrary(with("Red", R"(\\\\192.0.2.1\\share\\red.png)")));
  repository_.write("anna/dress/materials.mat", materialLibrary(with("Blue", "https://192.0.2.1/blue.png")));
  repository_.write("anna/props.mat", materialLibrary(with("Felt", "file://" + secret) + ", " +
                                                      with("Oak", "../../../../../etc/passwd")));
}

void TemptingRepository::makeLinks() const {
  const auto link = [this](const char* name, const char* target) {
    fs::remove_all(root() / name);
    fs::create_symlink(secrets() / target, root() / name);
  };
  link("maps/Wool.png", "secret.png");
  link("anna/skin/light.png", "secret.png");
  link("anna/coat/coat_standing.vrmesh", "secret.vrmesh");
}

void TemptingRepository::writeScene(const std::string& plain) const {
  Json scene = Json::parse(plain);
  std::size_t next = 0;
  const std::vector<std::string> files = {(secrets() / "secret.vrmesh").string(), R"(\\192.0.2.1\share\mesh.vrmesh)",
                                          "https://192.0.2.1/mesh.vrmesh", "../../../../../../etc/passwd"};
  tempt(scene, files, next);
  secrets_.write("given/scene.json", scene.dump());
}

void TemptingRepository::writeEntities() const {
  entities_.write("zorvel.xml",
                  "<!DOCTYPE zorvel SYSTEM \"https://192.0.2.1/zorvel.dtd\" [<!ENTITY one SYSTEM \"file://" +
                      (secrets() / "secret.txt").string() +
                      "\"><!ENTITY % two SYSTEM \"/etc/passwd\"> %two;]>\n"
                      "<zorvel xmlns:xi=\"http://www.w3.org/2001/XInclude\">&one;"
                      "<xi:include href=\"/etc/passwd\" parse=\"text\"/></zorvel>");
}

}  // namespace support
