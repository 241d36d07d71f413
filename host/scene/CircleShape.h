#pragma once

#include <object.h>

#include "host/scene/Geometry.h"

namespace host {

/// A circle in the XY plane; parameter 0 of its old-style array is the radius, in scene units.
class CircleShape : public ShapeObject, public IParamArray, public Geometry {
 public:
  Class_ID ClassID() override { return Class_ID(CIRCLE_CLASS_ID, 0); }
  IParamArray* GetParamBlock() override { return this; }
  using Animatable::GetParamBlock;

  BOOL SetValue(int index, TimeValue t, float v) override;
  BOOL GetValue(int index, TimeValue t, float& v, Interval& valid) override;

  Box3 bounds() const override;

 private:
  float radius_ = 0.0F;
};

}  // namespace host
