#include "samples/repository/MaterialLibraryWriter.h"

#include <nlohmann/json.hpp>

#include "samples/repository/RepositoryFiles.h"

namespace samples {
namespace {

using Json = nlohmann::ordered_json;

double rounded(double value) { return std::round(value * 10000) / 10000; }

Json parameter(int id, const char* type, Json value) {
  return {{"id", id}, {"type", type}, {"value", std::move(value)}};
}

Json bitmap(const std::string& folder, const std::string& file) {
  if (file.empty()) return nullptr;
  return {{"name", file.substr(0, file.rfind('.'))}, {"class", "bitmap"}, {"file", folder + "\\" + file}};
}

Json look(const Material& material) {
  Json color = {rounded(material.color.redF()), rounded(material.color.greenF()), rounded(material.color.blueF())};
  Json block = Json::array();
  block.push_back(parameter(0, "color", std::move(color)));
  block.push_back(parameter(1, "float", rounded(material.roughness)));
  block.push_back(parameter(2, "float", rounded(material.opacity)));
  return block;
}

Json toJson(const Material& material, const std::string& folder) {
  Json json = {{"name", material.name}};
  if (material.kind == Material::Kind::Multi) {
    json["class"] = "multi";
    for (const Material& part : material.parts) json["subMaterials"].push_back(toJson(part, folder));
    return json;
  }
  Json block = look(material);
  if (material.kind == Material::Kind::Scaled) {
    json["class"] = "scaled";
    block.push_back(parameter(10, "texmap", bitmap(folder, material.texture)));
    block.push_back(parameter(22, "float", rounded(material.softness)));
    json["blocks"] = Json::array({block});
    return json;
  }
  json["class"] = "standard";
  json["blocks"] = Json::array({block});
  if (!material.texture.empty()) json["subTextures"] = Json::array({nullptr, bitmap(folder, material.texture)});
  return json;
}

}  // namespace

std::string MaterialLibraryWriter::text() const {
  Json json = {{"format", "zorvel-material-library"}, {"version", 1}, {"materials", Json::array()}};
  for (const Material& material : materials_) json["materials"].push_back(toJson(material, textureFolder_));
  return json.dump(1) + "\n";
}

std::string MaterialLibraryWriter::write(const std::filesystem::path& file) const { return writeText(file, text()); }

}  // namespace samples
