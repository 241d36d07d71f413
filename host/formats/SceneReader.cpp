#include "host/formats/SceneReader.h"

#include <algorithm>
#include <cwctype>
#include <map>

#include "host/files/JsonBounds.h"
#include "host/files/Paths.h"
#include "host/formats/JsonValues.h"
#include "host/formats/MaterialReader.h"
#include "host/formats/ObjectJson.h"
#include "host/formats/SceneJson.h"
#include "host/formats/Unreadable.h"

namespace host {

namespace {

using Json = nlohmann::ordered_json;

/// Far deeper than anybody builds, and shallow enough for the stack.
constexpr int MAXIMUM_DEPTH = 500;
// What a scene may cost. Characters have seven nodes and 28,000 bytes each, so that two thousand of them fit in.
constexpr std::size_t MOST_VALUES = 2'500'000;
constexpr std::size_t MOST_NODES = 50'000;
constexpr std::size_t MOST_LAYERS = 10'000;

MSTR text(const Json& json) { return toWide(json.get<std::string>()).c_str(); }

std::wstring folded(const MSTR& name) {
  std::wstring result = name.data();
  std::transform(result.begin(), result.end(), result.begin(),
                 [](wchar_t c) { return static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c))); });
  return result;
}

class Reader {
 public:
  SceneContent read(const Json& document) {
    SceneContent content;
    for (const Json& layer : document.at("layers")) addLayer(text(layer), content.layers);
    if (content.layers.empty()) throw Unreadable("it has no layers");
    content.nodes = nodes(document.at("nodes"));
    return content;
  }

 private:
  void addLayer(const MSTR& name, std::vector<MSTR>& layers) {
    if (layers.size() == MOST_LAYERS) throw Unreadable("it has more than 10,000 layers");
    if (!layerIndex_.emplace(folded(name), layers.size()).second) throw Unreadable("two layers have the same name");
    layers.push_back(name);
  }

  std::vector<NodeContent> nodes(const Json& json) {
    if (!json.is_array()) throw Unreadable("its nodes are no list");
    if (++depth_ > MAXIMUM_DEPTH) throw Unreadable("its nodes hang too deep");
    std::vector<NodeContent> result;
    for (const Json& one : json) result.push_back(node(one));
    --depth_;
    return result;
  }

  NodeContent node(const Json& json) {
    if (++count_ > MOST_NODES) throw Unreadable("it has more than 50,000 nodes");
    NodeContent node;
    node.name = text(json.at("name"));
    node.local = matrixFrom(json.at("local"));
    if (json.contains("objectOffset")) node.offset = matrixFrom(json.at("objectOffset"));
    const auto layer = layerIndex_.find(folded(text(json.at("layer"))));
    if (layer == layerIndex_.end()) throw Unreadable("a node is on a layer that there is not");
    node.layer = layer->second;
    readGroup(json, node);
    node.selected = json.value("selected", false);
    if (json.contains("properties")) readProperties(json.at("properties"), node);
    if (json.contains("object")) node.object = objects_.object(json.at("object"));
    if (json.contains("material")) node.material = materials_.material(json.at("material"));
    if (json.contains("children")) node.children = nodes(json.at("children"));
    return node;
  }

  static void readGroup(const Json& json, NodeContent& node) {
    const std::string role = json.value("group", "");
    node.groupHead = role == "head" || role == "member head";
    node.groupMember = role == "member" || role == "member head";
    if (!role.empty() && !node.groupHead && !node.groupMember) throw Unreadable("unknown part in a group: " + role);
  }

  static void readProperties(const Json& json, NodeContent& node) {
    if (!json.is_object()) throw Unreadable("the properties of a node are none");
    for (const auto& pair : json.items()) node.properties.emplace_back(toWide(pair.key()).c_str(), text(pair.value()));
  }

  ObjectReader objects_;
  MaterialReader materials_;
  std::map<std::wstring, std::size_t> layerIndex_;
  int depth_ = 0;
  std::size_t count_ = 0;
};

Units units(const Json& json) {
  Units result;
  if (!result.set(integerFrom<int>(json.at("type")), floatFrom(json.at("scale")))) throw Unreadable("its unit is none");
  return result;
}

}  // namespace

std::string excessOf(std::string_view text) {
  if (text.size() > MOST_SCENE_BYTES) return "it is larger than 64 megabytes";
  return isWithinBounds(text, MOST_VALUES) ? "" : "it holds more values than a scene can have";
}

SceneReading readScene(const Json& document) {
  if (!document.is_object() || document.value("format", "") != SCENE_FORMAT) {
    throw Unreadable("it is no scene file, or not a whole one");
  }
  if (!document.contains("version") || integerFrom<int>(document.at("version")) != SCENE_FORMAT_VERSION)
    throw Unreadable("its version is not one that this host reads");
  return {units(document.at("unit")), Reader().read(document)};
}

}  // namespace host
