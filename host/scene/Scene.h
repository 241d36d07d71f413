#pragma once

#include <inode.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/scene/LayerManager.h"
#include "host/scene/Node.h"
#include "host/services/Ref.h"

namespace host {

struct NodeContent;
struct SceneContent;

/// The tree of nodes, the selection, groups and layers. Nodes that enter or leave, by whatever way, are announced.
class Scene {
 public:
  Scene();

  Node& root() const { return *root_; }
  LayerManager& layers() { return *layers_; }
  /// Every node but the root, parents before their children, siblings in order.
  std::vector<Node*> nodes() const;
  /// The first of that name, null when there is none.
  Node* find(const std::wstring& name) const;
  /// Rises with every change, undone and redone ones too.
  std::uint64_t revision() const { return revision_; }
  /// Rises with every change of what can be seen, other than nodes changing their place.
  std::uint64_t appearance() const { return appearance_; }
  /// How many times nodes changed their place.
  std::uint64_t moveCount() const { return forgottenMoves_ + moved_.size(); }
  /// The nodes that changed place since the count was that, children not listed; one may be there twice. Nothing when
  /// they are not remembered: too many came since, or the appearance changed.
  std::optional<std::vector<Node*>> movedSince(std::uint64_t count) const;

  // What makes a change says so by one of these.
  void touch() { ++revision_; }
  void touchAppearance();
  void touchPlace(Node& node);

  /// A new node under the root. Null for null.
  Node* create(Object* object);
  void attach(Node& child, Node& parent, bool keepTM);
  /// Its children move up to its parent. A group that this leaves without members goes too.
  unsigned int remove(Node& node);

  void select(Node& node, bool clearFirst);
  /// Nodes of the scene, each once, in place of what was selected.
  void select(const std::vector<Node*>& nodes);
  void clearSelection();
  bool isSelected(const Node& node) const;
  const std::vector<Ref<Node>>& selection() const { return selection_; }

  /// The new head; null when the list is empty.
  Node* group(const std::vector<Node*>& members, const MSTR& name);

  /// Lets go of every node without announcing each; for a scene that is replaced as a whole.
  void clear();
  /// Takes the place of everything in the scene, without announcing single nodes; for a file that is opened. Nothing is
  /// recorded.
  void replace(const SceneContent& content);

 private:
  struct Place;

  Place placeOf(const Node& node) const;
  void moveTo(Node& node, const Place& place);
  void enter(Node& node, const Place& place);
  void leave(Node& node);
  void link(Node& child, Node& parent, std::size_t index);
  static void unlink(Node& child);
  void changeSelection(const std::vector<Ref<Node>>& selection);
  void removeEmptyGroup(Node* head);
  void build(const NodeContent& content, Node& parent);
  MSTR defaultName(Object& object);

  Ref<Node> root_;
  Ref<LayerManager> layers_;
  std::vector<Ref<Node>> selection_;
  std::map<std::wstring, int> usedNames_;
  std::uint64_t revision_ = 0;
  std::uint64_t appearance_ = 0;
  std::uint64_t forgottenMoves_ = 0;
  std::vector<Node*> moved_;
};

}  // namespace host
