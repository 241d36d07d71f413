#pragma once

#include <interval.h>
#include <maxtypes.h>

/// The old-style parameter array; an index is a plain number that the class defines.
class IParamArray {
 public:
  virtual ~IParamArray() = default;
  virtual BOOL SetValue(int /*index*/, TimeValue /*t*/, float /*v*/) { return FALSE; }
  virtual BOOL GetValue(int /*index*/, TimeValue /*t*/, float& /*v*/, Interval& /*valid*/) { return FALSE; }
};
