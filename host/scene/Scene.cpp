#include "host/scene/Scene.h"

#include <hold.h>
#include <notify.h>

#include <algorithm>
#include <cwchar>
#include <unordered_set>

#include "host/scene/GroupHead.h"
#include "host/scene/SceneContent.h"
#include "host/services/Change.h"

namespace host {

/// Where a node hangs: what undoing a move has to give back.
struct Scene::Place {
  Ref<Node> parent;
  std::size_t index;
  Matrix3 local;
};

namespace {

constexpr std::size_t LAST = static_cast<std::size_t>(-1);
constexpr std::size_t REMEMBERED_MOVES = 4096;

void collect(const Node& node, std::vector<Node*>& out) {
  for (const Ref<Node>& child : node.children()) {
    out.push_back(child.get());
    collect(*child, out);
  }
}

bool isBelow(const Node& node, INode& possibleAncestor) {
  for (INode* up = const_cast<Node&>(node).GetParentNode(); up != nullptr; up = up->GetParentNode()) {
    if (up == &possibleAncestor) return true;
  }
  return false;
}

Point3 centre(const std::vector<Node*>& nodes) {
  Box3 bounds;
  for (Node* node : nodes) bounds += node->worldBounds();
  return bounds.IsEmpty() ? nodes.front()->GetNodeTM(0).GetTrans() : bounds.Center();
}

}  // namespace

Scene::Scene() : root_(new Node(*this, nullptr, L"Scene Root")), layers_(new LayerManager(*this)) {
  root_->isRoot_ = true;
}

std::vector<Node*> Scene::nodes() const {
  std::vector<Node*> result;
  collect(*root_, result);
  return result;
}

Node* Scene::find(const std::wstring& name) const {
  for (Node* node : nodes()) {
    if (name == node->GetName()) return node;
  }
  return nullptr;
}

std::optional<std::vector<Node*>> Scene::movedSince(std::uint64_t count) const {
  if (count < forgottenMoves_ || count > moveCount()) return std::nullopt;
  return std::vector<Node*>(moved_.begin() + static_cast<std::ptrdiff_t>(count - forgottenMoves_), moved_.end());
}

// Nodes may have left the scene, so no pointer is kept beyond this.
void Scene::touchAppearance() {
  touch();
  ++appearance_;
  forgottenMoves_ += moved_.size();
  moved_.clear();
}

void Scene::touchPlace(Node& node) {
  touch();
  if (!node.inScene()) return;
  if (moved_.size() == REMEMBERED_MOVES) {
    forgottenMoves_ += moved_.size();
    moved_.clear();
  }
  moved_.push_back(&node);
}

Node* Scene::create(Object* object) {
  if (object == nullptr) return nullptr;
  const Ref<Node> node(new Node(*this, object, defaultName(*object)));
  node->layer_ = Ref<Layer>(static_cast<Layer*>(layers_->GetRootLayer()));
  applyChange([this, node] { leave(*node); }, [this, node] { enter(*node, {root_, LAST, node->local_}); });
  return node.get();
}

void Scene::attach(Node& child, Node& parent, bool keepTM) {
  if (child.parent_ == nullptr || &child == &parent || isBelow(parent, child)) return;
  const Ref<Node> node(&child);
  const Place before = placeOf(child);
  const Matrix3 local = keepTM ? child.GetNodeTM(0) * Inverse(parent.GetNodeTM(0)) : child.local_;
  const Place after{Ref<Node>(&parent), LAST, local};
  applyChange([this, node, before] { moveTo(*node, before); }, [this, node, after] { moveTo(*node, after); });
  if (before.parent->groupHead_ && before.parent.get() != &parent) removeEmptyGroup(before.parent.get());
}

unsigned int Scene::remove(Node& node) {
  if (node.parent_ == nullptr) return 0;
  const Ref<Node> kept(&node);
  while (!node.children_.empty()) {
    Node& child = *node.children_.front();
    if (node.groupHead_) child.setGroupMember(false);
    attach(child, *node.parent_, true);
  }
  // A head goes with its last member; taking the member flags away must not end the head a second time.
  if (node.parent_ == nullptr) return 1;
  if (isSelected(node)) {
    std::vector<Ref<Node>> rest = selection_;
    rest.erase(std::remove(rest.begin(), rest.end(), kept), rest.end());
    changeSelection(rest);
  }
  const Place place = placeOf(node);
  applyChange([this, kept, place] { enter(*kept, place); }, [this, kept] { leave(*kept); });
  node.gone_ = theHold.Holding() == 0;
  if (place.parent->groupHead_) removeEmptyGroup(place.parent.get());
  return 1;
}

void Scene::removeEmptyGroup(Node* head) {
  if (head->children_.empty()) remove(*head);
}

void Scene::select(Node& node, bool clearFirst) {
  std::vector<Ref<Node>> selection = clearFirst ? std::vector<Ref<Node>>() : selection_;
  const Ref<Node> added(&node);
  if (node.inScene() && std::find(selection.begin(), selection.end(), added) == selection.end()) {
    selection.push_back(added);
  }
  changeSelection(selection);
}

void Scene::select(const std::vector<Node*>& nodes) {
  changeSelection(std::vector<Ref<Node>>(nodes.begin(), nodes.end()));
}

void Scene::clearSelection() { changeSelection({}); }

bool Scene::isSelected(const Node& node) const {
  return std::any_of(selection_.begin(), selection_.end(), [&](const Ref<Node>& one) { return one.get() == &node; });
}

void Scene::changeSelection(const std::vector<Ref<Node>>& selection) {
  if (selection == selection_) return;
  const auto set = [this](std::vector<Ref<Node>> nodes) {
    nodes.erase(std::remove_if(nodes.begin(), nodes.end(), [](const Ref<Node>& node) { return !node->inScene(); }),
                nodes.end());
    selection_ = std::move(nodes);
    touch();
  };
  const std::vector<Ref<Node>> before = selection_;
  applyChange([set, before] { set(before); }, [set, selection] { set(selection); });
}

Node* Scene::group(const std::vector<Node*>& members, const MSTR& name) {
  if (members.empty()) return nullptr;
  Node* head = create(new GroupHead);
  head->SetName(name);
  head->setGroupHead(true);
  Matrix3 tm(TRUE);
  tm.SetTrans(centre(members));
  head->SetNodeTM(0, tm);
  const std::unordered_set<const Node*> all(members.begin(), members.end());
  for (Node* member : members) {
    if (all.count(member->parent_) == 0) attach(*member, *head, true);
    member->setGroupMember(true);
  }
  return head;
}

void Scene::clear() {
  selection_.clear();
  for (const Ref<Node>& top : root_->children_) top->parent_ = nullptr;
  root_->children_.clear();
  layers_->clear();
  usedNames_.clear();
  touchAppearance();
}

void Scene::replace(const SceneContent& content) {
  clear();
  if (!content.layers.empty()) layers_->GetRootLayer()->SetName(content.layers.front());
  for (std::size_t i = 1; i < content.layers.size(); ++i) layers_->add(content.layers[i]);
  for (const NodeContent& top : content.nodes) build(top, *root_);
}

void Scene::build(const NodeContent& content, Node& parent) {
  const Ref<Node> node(new Node(*this, content.object.get(), content.name));
  node->material_ = content.material;
  node->local_ = content.local;
  node->offset_ = content.offset;
  node->properties_ = content.properties;
  node->layer_ = layers_->layers()[std::min(content.layer, layers_->layers().size() - 1)];
  node->groupHead_ = content.groupHead;
  node->groupMember_ = content.groupMember;
  link(*node, parent, LAST);
  if (content.selected) selection_.push_back(node);
  for (const NodeContent& child : content.children) build(child, *node);
}

Scene::Place Scene::placeOf(const Node& node) const {
  const std::vector<Ref<Node>>& siblings = node.parent_->children_;
  const auto self =
      std::find_if(siblings.begin(), siblings.end(), [&](const Ref<Node>& one) { return one.get() == &node; });
  return {Ref<Node>(node.parent_), static_cast<std::size_t>(self - siblings.begin()), node.local_};
}

// Undo and redo come here too, perhaps after nodes were deleted without a record: what is not in the scene stays out of
// it.
void Scene::moveTo(Node& node, const Place& place) {
  if (!node.inScene() || !place.parent->inScene()) return;
  const Ref<Node> kept(&node);
  unlink(node);
  node.local_ = place.local;
  link(node, *place.parent, place.index);
}

void Scene::enter(Node& node, const Place& place) {
  if (node.inScene() || node.gone_) return;
  node.local_ = place.local;
  link(node, place.parent->inScene() ? *place.parent : *root_, place.index);
  BroadcastNotification(NOTIFY_SCENE_ADDED_NODE, &node);
}

void Scene::leave(Node& node) {
  if (node.parent_ == nullptr) return;
  const Ref<Node> kept(&node);
  BroadcastNotification(NOTIFY_SCENE_PRE_DELETED_NODE, &node);
  while (!node.children_.empty()) {
    Node& child = *node.children_.front();
    moveTo(child, {Ref<Node>(node.parent_), LAST, child.GetNodeTM(0) * Inverse(node.parent_->GetNodeTM(0))});
  }
  selection_.erase(std::remove(selection_.begin(), selection_.end(), kept), selection_.end());
  unlink(node);
  touchAppearance();
  BroadcastNotification(NOTIFY_SCENE_POST_DELETED_NODE);
}

void Scene::link(Node& child, Node& parent, std::size_t index) {
  const auto at = parent.children_.begin() + static_cast<std::ptrdiff_t>(std::min(index, parent.children_.size()));
  parent.children_.insert(at, Ref<Node>(&child));
  child.parent_ = &parent;
  touchAppearance();
}

void Scene::unlink(Node& child) {
  std::vector<Ref<Node>>& siblings = child.parent_->children_;
  child.parent_ = nullptr;
  siblings.erase(
      std::find_if(siblings.begin(), siblings.end(), [&](const Ref<Node>& one) { return one.get() == &child; }));
}

MSTR Scene::defaultName(Object& object) {
  const SClass_ID kind = object.SuperClassID();
  const std::wstring prefix = kind == SHAPE_CLASS_ID ? L"Shape" : (kind == HELPER_CLASS_ID ? L"Group" : L"Object");
  wchar_t number[16];
  std::swprintf(number, 16, L"%03d", ++usedNames_[prefix]);
  return (prefix + number).c_str();
}

}  // namespace host
