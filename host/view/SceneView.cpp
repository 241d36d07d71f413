#include "host/view/SceneView.h"

#include <algorithm>

#include "host/geometry/Bounds.h"
#include "host/rays/Visibility.h"
#include "host/scene/Scene.h"
#include "host/services/Listener.h"
#include "host/view/SceneItems.h"

namespace host {

namespace {

Box3 boundsOf(const ViewItem& item) {
  return visibilityOf(item) == Visibility::Shown ? transformed(item.mesh->bounds, item.toWorld) : Box3();
}

/// Filters may be slow in the eyes of a ray that meets hundreds of triangles: each node is asked about once.
class RememberedAnswers {
 public:
  explicit RememberedAnswers(const RayScene::Accept& accept) : accept_(accept) {}
  bool operator()(INode* node) {
    for (const auto& answer : answers_) {
      if (answer.first == node) return answer.second;
    }
    answers_.emplace_back(node, accept_(node));
    return answers_.back().second;
  }

 private:
  const RayScene::Accept& accept_;
  std::vector<std::pair<INode*, bool>> answers_;
};

}  // namespace

RayScene& SceneView::prepared() {
  if (!rays_) rays_.emplace();
  return *rays_;
}

const RayScene& SceneView::rays() {
  update();
  return prepared();
}

SceneView::Changes SceneView::takeChanges() {
  update();
  const Changes changes = changes_;
  changes_ = {};
  return changes;
}

INode* SceneView::pick(const Ray& ray, const RayScene::Accept& accept) {
  update();
  RememberedAnswers answers(accept);
  const auto hit = accept ? prepared().intersect(ray, std::ref(answers)) : prepared().intersect(ray);
  return hit ? prepared().items()[hit->item].node : nullptr;
}

void SceneView::update() {
  const auto moved = scene_.movedSince(movesSeen_);
  if (!built_ || appearance_ != scene_.appearance() || !moved) return rebuild();
  movesSeen_ = scene_.moveCount();
  for (Node* node : *moved) follow(*node);
  if (!followed_.empty()) moveWhatFollowed();
}

void SceneView::rebuild() {
  std::vector<ViewItem> items = viewItems(scene_);
  appearance_ = scene_.appearance();
  movesSeen_ = scene_.moveCount();
  itemOf_.clear();
  for (std::size_t i = 0; i < items.size(); ++i) itemOf_[static_cast<Node*>(items[i].node)] = i;
  RayScene& rays = prepared();
  rays.setItems(std::move(items));
  if (!rays.complete()) Listener::instance().reportOnce("Not everything is shown: there is not enough memory.");
  built_ = true;
  changes_ = {true, Box3()};
  ++rebuilds_;
}

void SceneView::follow(Node& node) {
  const auto item = itemOf_.find(&node);
  if (item != itemOf_.end()) followed_.push_back(item->second);
  for (const Ref<Node>& child : node.children()) follow(*child);
}

void SceneView::moveWhatFollowed() {
  std::sort(followed_.begin(), followed_.end());
  followed_.erase(std::unique(followed_.begin(), followed_.end()), followed_.end());
  std::vector<RayScene::Move> moves;
  for (const std::size_t index : followed_) {
    const ViewItem& item = prepared().items()[index];
    const Matrix3 toWorld = item.node->GetObjectTM(0);
    if (toWorld == item.toWorld) continue;
    changes_.bounds += boundsOf(item);
    moves.push_back({index, toWorld});
  }
  prepared().moveItems(moves);
  for (const RayScene::Move& move : moves) changes_.bounds += boundsOf(prepared().items()[move.item]);
  moves_ += moves.size();
  followed_.clear();
}

}  // namespace host
