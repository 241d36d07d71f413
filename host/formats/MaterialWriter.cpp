#include "host/formats/MaterialWriter.h"

#include <stdexcept>

#include "host/files/Paths.h"
#include "host/materials/BitmapTexture.h"
#include "host/materials/MaterialWalk.h"

namespace host {

namespace {

using Json = MaterialWriter::Json;

/// Each node names those of its material, and both may be many.
constexpr std::size_t MOST_TEXTURES = 500'000;

void describe(MtlBase& one, Json& json) {
  json["name"] = toUtf8(one.GetName().data());
  json["class"] = {one.ClassID().PartA(), one.ClassID().PartB()};
}

}  // namespace

bool MaterialWriter::isKnown(MtlBase& one, Json& json) {
  const auto entry = ids_.emplace(&one, static_cast<int>(ids_.size()) + 1);
  json[entry.second ? "id" : "ref"] = entry.first->second;
  return !entry.second;
}

Json MaterialWriter::material(Mtl* mtl) {
  Json json;
  if (mtl == nullptr) return json;
  describe(*mtl, json);
  const bool known = isKnown(*mtl, json);
  json["textures"] = Json::array();
  forEachBitmap(*mtl, [&](BitmapTex& bitmap) {
    if (++textures_ > MOST_TEXTURES) throw std::length_error("the scene's materials have too many textures");
    json["textures"].push_back(toUtf8(bitmap.GetMapName()));
  });
  if (known) return json;
  json["blocks"] = blocks(*mtl);
  json["subMaterials"] = Json::array();
  for (int i = 0; i < mtl->NumSubMtls(); ++i) json["subMaterials"].push_back(material(mtl->GetSubMtl(i)));
  json["subTextures"] = Json::array();
  for (int i = 0; i < mtl->NumSubTexmaps(); ++i) json["subTextures"].push_back(map(mtl->GetSubTexmap(i)));
  return json;
}

Json MaterialWriter::map(Texmap* map) {
  Json json;
  if (map == nullptr) return json;
  describe(*map, json);
  if (isKnown(*map, json)) return json;
  if (auto* bitmap = dynamic_cast<BitmapTex*>(map)) {
    json["file"] = toUtf8(bitmap->GetMapName());
    return json;
  }
  json["blocks"] = blocks(*map);
  json["subTextures"] = Json::array();
  for (int i = 0; i < map->NumSubTexmaps(); ++i) json["subTextures"].push_back(this->map(map->GetSubTexmap(i)));
  return json;
}

Json MaterialWriter::blocks(Animatable& owner) {
  Json json = Json::array();
  for (int i = 0; i < owner.NumParamBlocks(); ++i) {
    json.push_back(Json::array());
    const auto* block = dynamic_cast<const ParameterBlock*>(owner.GetParamBlock(i));
    if (block == nullptr) continue;
    for (const ParameterBlock::Parameter& one : block->parameters()) json.back().push_back(parameter(one));
  }
  return json;
}

Json MaterialWriter::parameter(const ParameterBlock::Parameter& parameter) {
  Json json;
  json["id"] = parameter.id;
  const auto store = [&json](const char* type, Json value) {
    json["type"] = type;
    json["value"] = std::move(value);
  };
  const ParameterBlock::Value& value = parameter.value;
  if (const auto* real = std::get_if<float>(&value)) store("float", *real);
  if (const auto* whole = std::get_if<int>(&value)) store("int", *whole);
  if (const auto* color = std::get_if<Color>(&value)) store("color", {color->r, color->g, color->b});
  if (const auto* text = std::get_if<std::wstring>(&value)) store("text", toUtf8(*text));
  if (const auto* mtl = std::get_if<Ref<Mtl>>(&value)) store("material", material(mtl->get()));
  if (const auto* texmap = std::get_if<Ref<Texmap>>(&value)) store("texmap", map(texmap->get()));
  return json;
}

}  // namespace host
