#include "host/scene/Node.h"

#include <imtl.h>
#include <notify.h>

#include <algorithm>

#include "host/geometry/Bounds.h"
#include "host/geometry/Reach.h"
#include "host/scene/Geometry.h"
#include "host/scene/Scene.h"
#include "host/services/Change.h"

namespace host {

namespace {

ULONG nextHandle() {
  static ULONG last = 0;
  return ++last;
}

template <class Properties>
auto findProperty(Properties& properties, const MSTR& key) {
  return std::find_if(properties.begin(), properties.end(), [&](const auto& entry) { return entry.first == key; });
}

}  // namespace

Node::Node(Scene& scene, Object* object, const MSTR& name)
    : scene_(scene), object_(object), name_(name), handle_(nextHandle()) {}

Node::~Node() {
  for (const Ref<Node>& child : children_) child->parent_ = nullptr;
}

template <class Value>
void Node::change(Value Node::*member, Value value, Concern concern) {
  if (this->*member == value) return;
  const Ref<Node> self(this);
  const auto store = [self, member, concern](const Value& content) {
    self.get()->*member = content;
    self->tellScene(concern);
  };
  applyChange([store, before = this->*member] { store(before); }, [store, value] { store(value); });
}

void Node::tellScene(Concern concern) {
  if (concern == Concern::Place) return scene_.touchPlace(*this);
  concern == Concern::Look ? scene_.touchAppearance() : scene_.touch();
}

void Node::SetName(const MCHAR* name) { change(&Node::name_, MSTR(name), Concern::Look); }

Matrix3 Node::GetNodeTM(TimeValue t, Interval* /*valid*/) {
  return parent_ != nullptr ? local_ * parent_->GetNodeTM(t) : local_;
}

void Node::SetNodeTM(TimeValue t, Matrix3& tm) {
  if (isRoot_) return;
  change(&Node::local_, tm * Inverse(GetParentTM(t)), Concern::Place);
}

Matrix3 Node::GetObjectTM(TimeValue t, Interval* /*valid*/) { return offset_ * GetNodeTM(t); }

Matrix3 Node::GetParentTM(TimeValue t) { return parent_ != nullptr ? parent_->GetNodeTM(t) : Matrix3(TRUE); }

void Node::AttachChild(INode* node, int keepTM) {
  if (node != nullptr) scene_.attach(static_cast<Node&>(*node), *this, keepTM != 0);
}

INode* Node::GetChildNode(int i) {
  if (i < 0 || i >= NumberOfChildren()) return nullptr;
  return children_[static_cast<std::size_t>(i)].get();
}

int Node::Selected() { return scene_.isSelected(*this) ? 1 : 0; }

const ObjectState& Node::EvalWorldState(TimeValue /*t*/, BOOL /*evalHidden*/) {
  state_.obj = object_.get();
  return state_;
}

void Node::SetMtl(Mtl* material) {
  if (isRoot_) return;
  change(&Node::material_, Ref<Mtl>(material), Concern::Look);
  BroadcastNotification(NOTIFY_NODE_POST_MTL, this);
}

BOOL Node::GetUserPropString(const MSTR& key, MSTR& value) {
  const auto found = findProperty(properties_, key);
  if (found == properties_.end()) return FALSE;
  value = found->second;
  return TRUE;
}

BOOL Node::GetUserPropBool(const MSTR& key, BOOL& value) {
  MSTR text;
  if (GetUserPropString(key, text) == FALSE) return FALSE;
  value = text == MSTR(L"TRUE") ? TRUE : FALSE;
  return TRUE;
}

void Node::SetUserPropString(const MSTR& key, const MSTR& value) {
  Properties properties = properties_;
  const auto found = findProperty(properties, key);
  if (found != properties.end()) {
    found->second = value;
  } else {
    properties.emplace_back(key, value);
  }
  change(&Node::properties_, properties, Concern::Data);
}

void Node::SetUserPropBool(const MSTR& key, BOOL value) { SetUserPropString(key, value != FALSE ? L"TRUE" : L"FALSE"); }

BOOL Node::UserPropExists(const MSTR& key) {
  return findProperty(properties_, key) != properties_.end() ? TRUE : FALSE;
}

void Node::Move(TimeValue t, const Matrix3& tmAxis, const Point3& val, BOOL /*localOrigin*/, BOOL affectKids,
                int pivMode, BOOL /*ignoreLocks*/) {
  if (isRoot_) return;
  Matrix3 by(TRUE);
  by.Translate(tmAxis.VectorTransform(val));
  const Matrix3 nodeTM = GetNodeTM(t);
  const Matrix3 objectTM = GetObjectTM(t);
  const bool movesPivot = pivMode != PIV_OBJECT_ONLY;
  const bool movesObject = pivMode == PIV_NONE || pivMode == PIV_OBJECT_ONLY;
  place(movesPivot ? nodeTM * by : nodeTM, movesObject ? objectTM * by : objectTM, affectKids == FALSE);
}

void Node::place(const Matrix3& nodeTM, const Matrix3& objectTM, bool keepKids) {
  std::vector<Matrix3> kids;
  for (const Ref<Node>& child : children_) kids.push_back(child->GetNodeTM(0));
  Matrix3 pivot = nodeTM;
  SetNodeTM(0, pivot);
  change(&Node::offset_, objectTM * Inverse(nodeTM), Concern::Place);
  if (!keepKids) return;
  for (std::size_t i = 0; i < kids.size(); ++i) children_[i]->SetNodeTM(0, kids[i]);
}

Box3 Node::worldBounds() {
  const auto* geometry = dynamic_cast<const Geometry*>(object_.get());
  const Box3 box = geometry != nullptr ? transformed(geometry->bounds(), GetObjectTM(0)) : Box3();
  return isWithin(FARTHEST_PLACE, box) ? box : Box3();
}

void Node::setLayer(const Ref<Layer>& layer) { change(&Node::layer_, layer, Concern::Data); }

void Node::setGroupHead(bool head) { change(&Node::groupHead_, head, Concern::Data); }

void Node::setGroupMember(bool member) { change(&Node::groupMember_, member, Concern::Data); }

}  // namespace host
