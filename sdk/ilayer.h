#pragma once

#include <inode.h>

class ILayer : public ReferenceTarget {
 public:
  SClass_ID SuperClassID() override { return LAYER_CLASS_ID; }
  virtual void SetName(const MSTR& name) = 0;
  virtual MSTR GetName() const = 0;
  /// A node is on exactly one layer and leaves the one it was on. False for null.
  virtual bool AddToLayer(INode* node) = 0;
};
