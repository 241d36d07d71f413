#pragma once

#include <INodeTransformModes.h>
#include <matrix3.h>
#include <object.h>
#include <strclass.h>
#include <tab.h>

class Mtl;

/// A scene node. Transforms are world transforms over row vectors, in scene units.
class INode : public ReferenceTarget {
 public:
  SClass_ID SuperClassID() override { return BASENODE_CLASS_ID; }

  virtual const MCHAR* GetName() = 0;
  virtual void SetName(const MCHAR* name) = 0;

  virtual Matrix3 GetNodeTM(TimeValue t, Interval* valid = nullptr) = 0;
  /// Children move along.
  virtual void SetNodeTM(TimeValue t, Matrix3& tm) = 0;
  /// Object space to world space: the object offset, then the node's transform.
  virtual Matrix3 GetObjectTM(TimeValue t, Interval* valid = nullptr) = 0;
  virtual Matrix3 GetParentTM(TimeValue t) = 0;

  /// Null for the root node and for a node that is not in the scene.
  virtual INode* GetParentNode() = 0;
  /// The child leaves its present parent; with keepTM its world transform stays, without it the local one.
  virtual void AttachChild(INode* node, int keepTM = 1) = 0;
  virtual int NumberOfChildren() = 0;
  virtual INode* GetChildNode(int i) = 0;
  virtual int IsRootNode() = 0;
  virtual int Selected() = 0;

  virtual BOOL IsGroupMember() = 0;
  virtual BOOL IsGroupHead() = 0;

  virtual Object* GetObjectRef() = 0;
  virtual const ObjectState& EvalWorldState(TimeValue t, BOOL evalHidden = TRUE) = 0;

  virtual Mtl* GetMtl() = 0;
  /// The node refers to the material from now on; null takes it away.
  virtual void SetMtl(Mtl* material) = 0;

  virtual BOOL GetUserPropString(const MSTR& key, MSTR& value) = 0;
  virtual BOOL GetUserPropBool(const MSTR& key, BOOL& value) = 0;
  virtual void SetUserPropString(const MSTR& key, const MSTR& value) = 0;
  virtual void SetUserPropBool(const MSTR& key, BOOL value) = 0;
  virtual BOOL UserPropExists(const MSTR& key) = 0;

  /// `val` is measured in `tmAxis`. With affectKids FALSE the children stay where they are in the world.
  virtual void Move(TimeValue t, const Matrix3& tmAxis, const Point3& val, BOOL localOrigin = FALSE,
                    BOOL affectKids = TRUE, int pivMode = PIV_NONE, BOOL ignoreLocks = FALSE) = 0;

  /// Unique among all nodes that ever were; never 0.
  virtual ULONG GetHandle() = 0;
};

class INodeTab : public Tab<INode*> {};
