#pragma once

#include <ifnpub.h>
#include <interval.h>

class IParamBlock2;

namespace host {
class ReferenceCount;
}

class Animatable : public InterfaceServer {
 public:
  virtual SClass_ID SuperClassID() { return 0; }
  virtual Class_ID ClassID() { return {}; }
  virtual int NumParamBlocks() { return 0; }
  /// Null for an index that the class does not have.
  virtual IParamBlock2* GetParamBlock(int /*index*/) { return nullptr; }
  virtual IParamBlock2* GetParamBlockByID(BlockID /*id*/) { return nullptr; }
  virtual void DeleteThis() { delete this; }
};

class ReferenceMaker : public Animatable {};

/// Ended when the last one that refers to it lets go. One that nobody refers to yet belongs to whoever made it.
class ReferenceTarget : public ReferenceMaker {
 public:
  BOOL HasDependents() const { return dependents_ > 0 ? TRUE : FALSE; }
  /// Ends the target when nobody refers to it.
  void MaybeAutoDelete() {
    if (dependents_ == 0) DeleteThis();
  }

 private:
  friend class host::ReferenceCount;
  int dependents_ = 0;
};
