#include "host/formats/SceneJson.h"

#include <ILayerProperties.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <unordered_set>

#include "host/files/Paths.h"
#include "host/files/WholeFile.h"
#include "host/formats/JsonValues.h"
#include "host/formats/MaterialWriter.h"
#include "host/formats/ObjectJson.h"
#include "host/formats/SceneReader.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/services/Units.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

/// Below that a file would be made of blanks, gigabytes of them in the deepest.
constexpr int DEEPEST_INDENTED = 50;

Json properties(const Node& node) {
  Json json;
  for (const auto& property : node.properties()) json[toUtf8(property.first.data())] = toUtf8(property.second.data());
  return json;
}

/// Null for a node that is in no group.
Json groupRole(Node& node) {
  if (node.IsGroupHead() == FALSE) return node.IsGroupMember() != FALSE ? Json("member") : Json();
  return node.IsGroupMember() != FALSE ? "member head" : "head";
}

class Writer {
 public:
  explicit Writer(const Scene& scene) {
    for (const Ref<Node>& node : scene.selection()) selected_.insert(node.get());
  }

  /// How deep the nodes hang.
  int deepest() const { return deepest_; }

  Json node(Node& node, int depth = 1) {
    deepest_ = std::max(deepest_, depth);
    Json json;
    json["name"] = toUtf8(node.GetName());
    json["handle"] = node.GetHandle();
    json["transform"] = matrixJson(node.GetNodeTM(0));
    json["local"] = matrixJson(node.localTM());
    if (node.objectOffset().IsIdentity() == 0) json["objectOffset"] = matrixJson(node.objectOffset());
    json["layer"] = toUtf8(node.layer()->getName());
    const Json group = groupRole(node);
    if (!group.is_null()) json["group"] = group;
    if (selected_.count(&node) != 0) json["selected"] = true;
    if (!node.properties().empty()) json["properties"] = properties(node);
    if (node.GetObjectRef() != nullptr) json["object"] = objects_.object(*node.GetObjectRef());
    if (node.GetMtl() != nullptr) json["material"] = materials_.material(node.GetMtl());
    for (const Ref<Node>& child : node.children()) json["children"].push_back(this->node(*child, depth + 1));
    return json;
  }

 private:
  int deepest_ = 0;
  std::unordered_set<const Node*> selected_;
  ObjectWriter objects_;
  MaterialWriter materials_;
};

}  // namespace

std::string sceneJson(Scene& scene, const Units& units) {
  Json json;
  json["format"] = SCENE_FORMAT;
  json["version"] = SCENE_FORMAT_VERSION;
  json["unit"] = {{"type", units.type()}, {"scale", units.scale()}, {"centimetres", units.sceneUnitIn(4)}};
  json["layers"] = Json::array();
  for (const Ref<Layer>& layer : scene.layers().layers()) json["layers"].push_back(toUtf8(layer->getName()));
  json["nodes"] = Json::array();
  Writer writer(scene);
  for (const Ref<Node>& top : scene.root().children()) json["nodes"].push_back(writer.node(*top));
  const int indent = writer.deepest() > DEEPEST_INDENTED ? -1 : 2;
  return json.dump(indent, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string writeSceneJson(Scene& scene, const Units& units, const std::filesystem::path& file) {
  std::string text;
  try {
    text = sceneJson(scene, units);
  } catch (const std::length_error& tooMuch) {
    return tooMuch.what();
  }
  const std::string problem = writeWholeFile(file, text);
  const std::string excess = problem.empty() ? excessOf(text) : "";
  if (!excess.empty())
    Listener::instance().report("Scene " + file.string() + " cannot be opened again: " + excess + ".");
  return problem;
}

}  // namespace host
