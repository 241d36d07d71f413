#pragma once

#include <box3.h>
#include <inode.h>

#include <utility>
#include <vector>

#include "host/scene/Layer.h"
#include "host/services/Ref.h"

namespace host {

class Scene;

/// A node of the embedded host. Every change made through INode is recorded while theHold holds. Made and moved about
/// by Scene.
class Node final : public INode {
 public:
  using Properties = std::vector<std::pair<MSTR, MSTR>>;

  Node(Scene& scene, Object* object, const MSTR& name);
  ~Node() override;

  const MCHAR* GetName() override { return name_; }
  void SetName(const MCHAR* name) override;

  Matrix3 GetNodeTM(TimeValue t, Interval* valid = nullptr) override;
  void SetNodeTM(TimeValue t, Matrix3& tm) override;
  Matrix3 GetObjectTM(TimeValue t, Interval* valid = nullptr) override;
  Matrix3 GetParentTM(TimeValue t) override;

  INode* GetParentNode() override { return parent_; }
  void AttachChild(INode* node, int keepTM = 1) override;
  int NumberOfChildren() override { return static_cast<int>(children_.size()); }
  INode* GetChildNode(int i) override;
  int IsRootNode() override { return isRoot_ ? 1 : 0; }
  int Selected() override;

  BOOL IsGroupMember() override { return groupMember_ ? TRUE : FALSE; }
  BOOL IsGroupHead() override { return groupHead_ ? TRUE : FALSE; }

  Object* GetObjectRef() override { return object_.get(); }
  const ObjectState& EvalWorldState(TimeValue t, BOOL evalHidden = TRUE) override;

  Mtl* GetMtl() override { return material_.get(); }
  void SetMtl(Mtl* material) override;

  BOOL GetUserPropString(const MSTR& key, MSTR& value) override;
  BOOL GetUserPropBool(const MSTR& key, BOOL& value) override;
  void SetUserPropString(const MSTR& key, const MSTR& value) override;
  void SetUserPropBool(const MSTR& key, BOOL value) override;
  BOOL UserPropExists(const MSTR& key) override;

  void Move(TimeValue t, const Matrix3& tmAxis, const Point3& val, BOOL localOrigin, BOOL affectKids, int pivMode,
            BOOL ignoreLocks) override;
  ULONG GetHandle() override { return handle_; }

  const std::vector<Ref<Node>>& children() const { return children_; }
  const Properties& properties() const { return properties_; }
  /// Pivot space to object space; the identity unless pivot or geometry were moved apart.
  const Matrix3& objectOffset() const { return offset_; }
  const Matrix3& localTM() const { return local_; }
  /// Null for the root node alone.
  Layer* layer() const { return layer_.get(); }
  bool inScene() const { return isRoot_ || parent_ != nullptr; }
  /// The bounds of the geometry in the world, children left out; empty without geometry and out of reach.
  Box3 worldBounds();

  void setLayer(const Ref<Layer>& layer);
  void setGroupHead(bool head);
  void setGroupMember(bool member);

 private:
  friend class Scene;

  /// What a change concerns: data alone, how the node looks, or where it is.
  enum class Concern { Data, Look, Place };

  template <class Value>
  void change(Value Node::*member, Value value, Concern concern);
  void tellScene(Concern concern);
  /// Gives pivot and geometry new places in the world; `keepKids` leaves the children where they are.
  void place(const Matrix3& nodeTM, const Matrix3& objectTM, bool keepKids);

  Scene& scene_;
  Node* parent_ = nullptr;
  std::vector<Ref<Node>> children_;
  Ref<Object> object_;
  Ref<Mtl> material_;
  Ref<Layer> layer_;
  MSTR name_;
  Properties properties_;
  Matrix3 local_ = Matrix3(TRUE);
  Matrix3 offset_ = Matrix3(TRUE);
  ObjectState state_;
  ULONG handle_;
  bool isRoot_ = false;
  bool groupHead_ = false;
  bool groupMember_ = false;
  /// Deleted while nothing was recorded: no step on the undo list brings it back.
  bool gone_ = false;
};

}  // namespace host
