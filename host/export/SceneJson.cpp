#include "host/export/SceneJson.h"

#include <ILayerProperties.h>
#include <stdmat.h>

#include <nlohmann/json.hpp>

#include "host/application/Application.h"
#include "host/application/Units.h"
#include "host/files/Paths.h"
#include "host/files/WholeFile.h"
#include "host/materials/MaterialWalk.h"
#include "host/scene/ProxyObject.h"
#include "host/scene/Scene.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

constexpr int FORMAT_VERSION = 1;

Json classId(Class_ID id) { return {id.PartA(), id.PartB()}; }

Json matrix(const Matrix3& tm) {
  Json rows = Json::array();
  for (int i = 0; i < 4; ++i) {
    const Point3 row = tm.GetRow(i);
    rows.push_back({row.x, row.y, row.z});
  }
  return rows;
}

Json object(Object& object) {
  Json json;
  json["class"] = classId(object.ClassID());
  if (const auto* proxy = dynamic_cast<const ProxyObject*>(&object)) {
    json["file"] = toUtf8(proxy->fileName());
    if (!proxy->problem().empty()) json["problem"] = proxy->problem();
  }
  return json;
}

Json material(Mtl& mtl) {
  Json json;
  json["name"] = toUtf8(mtl.GetName().data());
  json["class"] = classId(mtl.ClassID());
  json["textures"] = Json::array();
  forEachBitmap(mtl, [&](BitmapTex& bitmap) { json["textures"].push_back(toUtf8(bitmap.GetMapName())); });
  json["subMaterials"] = Json::array();
  for (int i = 0; i < mtl.NumSubMtls(); ++i) {
    Mtl* sub = mtl.GetSubMtl(i);
    json["subMaterials"].push_back(sub != nullptr ? material(*sub) : Json());
  }
  return json;
}

Json describe(Node& node) {
  Json json;
  json["name"] = toUtf8(node.GetName());
  json["handle"] = node.GetHandle();
  json["transform"] = matrix(node.GetNodeTM(0));
  if (node.objectOffset().IsIdentity() == 0) json["objectOffset"] = matrix(node.objectOffset());
  json["layer"] = toUtf8(node.layer()->getName());
  if (node.IsGroupHead() != FALSE) json["group"] = "head";
  if (node.IsGroupMember() != FALSE) json["group"] = "member";
  if (node.Selected() != 0) json["selected"] = true;
  for (const auto& property : node.properties()) {
    json["properties"][toUtf8(property.first.data())] = toUtf8(property.second.data());
  }
  if (node.GetObjectRef() != nullptr) json["object"] = object(*node.GetObjectRef());
  if (node.GetMtl() != nullptr) json["material"] = material(*node.GetMtl());
  for (const Ref<Node>& child : node.children()) json["children"].push_back(describe(*child));
  return json;
}

}  // namespace

std::string sceneJson(Scene& scene) {
  const Units& units = Application::instance().units();
  Json json;
  json["format"] = "zorvel-scene";
  json["version"] = FORMAT_VERSION;
  json["unit"] = {{"type", units.type()}, {"scale", units.scale()}, {"centimetres", units.sceneUnitIn(4)}};
  json["layers"] = Json::array();
  for (const Ref<Layer>& layer : scene.layers().layers()) json["layers"].push_back(toUtf8(layer->getName()));
  json["nodes"] = Json::array();
  for (const Ref<Node>& top : scene.root().children()) json["nodes"].push_back(describe(*top));
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string writeSceneJson(Scene& scene, const std::filesystem::path& file) {
  return writeWholeFile(file, sceneJson(scene));
}

}  // namespace host
