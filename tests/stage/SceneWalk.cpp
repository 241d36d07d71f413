#include "tests/stage/SceneWalk.h"

#include <algorithm>

#include "host/application/Application.h"
#include "host/formats/SceneJson.h"
#include "scene/ProxyObjectDatabase.h"

namespace support {

namespace {

using Json = nlohmann::ordered_json;
using ZORVEL::ProxyObjectDatabase;

const host::ProxyObject* proxyOf(host::Node& node) { return dynamic_cast<host::ProxyObject*>(node.GetObjectRef()); }

/// How often the file's object counts as used. The register can only be asked by using it, so each use is taken away
/// and all are given back.
int usesOf(const std::wstring& file, const Object*& object) {
  Object* registered = ProxyObjectDatabase::LookUp(file.c_str());
  object = registered;
  int uses = 0;
  while (ProxyObjectDatabase::LookUp(file.c_str()) != nullptr) {
    // What the loop's own question added, and one use.
    ProxyObjectDatabase::Release(registered);
    ProxyObjectDatabase::Release(registered);
    ++uses;
  }
  // The first question added one as well.
  if (--uses <= 0) return 0;
  ProxyObjectDatabase::Add(registered, file.c_str());
  for (int i = 1; i < uses; ++i) ProxyObjectDatabase::LookUp(file.c_str());
  return uses;
}

bool isUnder(host::Node& node, bool (*accepts)(INode&)) {
  for (INode* up = node.GetParentNode(); up != nullptr; up = up->GetParentNode()) {
    if (accepts(*up)) return true;
  }
  return false;
}

void forEachNode(Json& nodes, void (*change)(Json&)) {
  for (Json& node : nodes) {
    change(node);
    if (node.contains("children")) forEachNode(node["children"], change);
  }
}

}  // namespace

void ExpectedProxies::follow(host::Scene& scene, bool builds) {
  std::vector<host::Ref<host::Node>> now;
  std::set<host::Node*> present;
  std::set<host::Node*> before;
  for (host::Node* node : scene.nodes()) {
    now.emplace_back(node);
    present.insert(node);
  }
  for (const auto& node : nodes_) before.insert(node.get());
  for (const auto& node : nodes_) {
    if (present.count(node.get()) == 0) leave(node->GetObjectRef());
  }
  for (const auto& node : now) {
    const host::ProxyObject* proxy = proxyOf(*node);
    if (builds && proxy != nullptr && before.count(node.get()) == 0) enter(*proxy);
  }
  nodes_ = std::move(now);
}

void ExpectedProxies::clear() {
  entries_.clear();
  nodes_.clear();
}

void ExpectedProxies::enter(const host::ProxyObject& proxy) {
  filesSeen_.insert(proxy.fileName());
  Entry& entry = entries_[proxy.fileName()];
  entry = {&proxy, entry.object == &proxy ? entry.uses + 1 : 1};
}

void ExpectedProxies::leave(const Object* object) {
  for (auto entry = entries_.begin(); entry != entries_.end(); ++entry) {
    if (entry->second.object != object) continue;
    if (--entry->second.uses == 0) entries_.erase(entry);
    return;
  }
}

std::string ExpectedProxies::differences(host::Scene& scene) const {
  std::string text;
  std::map<const Object*, int> shown;
  for (host::Node* node : scene.nodes()) ++shown[node->GetObjectRef()];
  for (const std::wstring& file : filesSeen_) {
    const Object* object = nullptr;
    const int uses = usesOf(file, object);
    const auto expected = entries_.find(file);
    const int wanted = expected != entries_.end() ? expected->second.uses : 0;
    const bool same = uses == wanted && (wanted == 0 || object == expected->second.object);
    if (!same)
      text += std::string(file.begin(), file.end()) + ": " + std::to_string(uses) + " uses, not " +
              std::to_string(wanted) + "\n";
    if (uses > 0 && shown[object] < uses) text += std::string(file.begin(), file.end()) + ": more uses than nodes\n";
  }
  return text;
}

std::string inconsistency(host::Scene& scene) {
  const std::vector<host::Node*> nodes = scene.nodes();
  const std::set<host::Node*> present(nodes.begin(), nodes.end());
  std::set<const ILayer*> layers;
  std::set<std::wstring> layerNames;
  for (const auto& layer : scene.layers().layers()) {
    layers.insert(layer.get());
    if (!layerNames.insert(layer->GetName().data()).second) return "two layers of one name";
  }
  std::set<ULONG> handles;
  for (host::Node* node : nodes) {
    if (!handles.insert(node->GetHandle()).second) return "a handle is there twice";
    if (layers.count(node->layer()) == 0) return "a node is on a layer that there is not";
    if (node->IsGroupHead() != FALSE && node->NumberOfChildren() == 0) return "a group without members";
    const auto isHead = [](INode& one) { return one.IsGroupHead() != FALSE; };
    if (node->IsGroupMember() != FALSE && !isUnder(*node, isHead)) return "a member without a group";
    for (const auto& child : node->children()) {
      if (child->GetParentNode() != node) return "a child of another parent";
    }
  }
  for (const auto& one : scene.selection()) {
    if (present.count(one.get()) == 0) return "what is selected is not there";
  }
  return "";
}

Json sceneNow() {
  host::Application& application = host::Application::instance();
  Json scene = Json::parse(host::sceneJson(application.scene(), application.units()));
  forEachNode(scene["nodes"], [](Json& node) { node.erase("handle"); });
  return scene;
}

Json recordedPart(Json scene) {
  forEachNode(scene["nodes"], [](Json& node) {
    for (const char* key : {"transform", "local", "selected"}) node.erase(key);
  });
  return scene;
}

}  // namespace support
