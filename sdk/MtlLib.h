#pragma once

#include <MtlBaseList.h>

/// Refers to its materials, so that one taken from it outlives the library by being assigned.
class MtlBaseLib : public ReferenceTarget, public MtlBaseList {
 public:
  /// Lets go of every material.
  virtual void DeleteAll() = 0;
  virtual void Add(MtlBase* material) = 0;
};
