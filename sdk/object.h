#pragma once

#include <iparamb.h>
#include <iparamb2.h>
#include <plugapi.h>
#include <ray.h>

class BaseObject : public ReferenceTarget {
 public:
  using Animatable::GetParamBlock;
  /// The old-style parameter array, null where the class has none.
  virtual IParamArray* GetParamBlock() { return nullptr; }
};

class Object : public BaseObject {
 public:
  /// `ray` and `norm` are in object space; `at` is the parameter along the ray as given. 0 when nothing is hit.
  virtual int IntersectRay(TimeValue /*t*/, Ray& /*ray*/, float& /*at*/, Point3& /*norm*/) { return 0; }
};

class GeomObject : public Object {
 public:
  SClass_ID SuperClassID() override { return GEOMOBJECT_CLASS_ID; }
};

class ShapeObject : public GeomObject {
 public:
  SClass_ID SuperClassID() override { return SHAPE_CLASS_ID; }
};

class HelperObject : public Object {
 public:
  SClass_ID SuperClassID() override { return HELPER_CLASS_ID; }
};

class ObjectState {
 public:
  /// Null for a node without an object.
  Object* obj = nullptr;
};
