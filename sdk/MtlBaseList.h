#pragma once

#include <imtl.h>
#include <tab.h>

using MtlBaseHandle = MtlBase*;

class MtlBaseList : public Tab<MtlBaseHandle> {
 public:
  /// The first of that name, -1 when there is none.
  int FindMtlByName(MSTR& name) {
    for (int i = 0; i < Count(); ++i) {
      if ((*this)[i]->GetName() == name) return i;
    }
    return -1;
  }
};
