#pragma once

#include <color.h>
#include <paramtype.h>
#include <plugapi.h>
#include <point3.h>
#include <ref.h>

class Mtl;
class Texmap;

class IParamBlock2 : public ReferenceTarget {
 public:
  virtual int NumParams() = 0;
  virtual BlockID ID() = 0;
  virtual ParamID IndextoID(int index) = 0;
  virtual int IDtoIndex(ParamID id) = 0;
  virtual ParamType2 GetParameterType(ParamID id) = 0;

  // FALSE for an unknown id or a value that the parameter's type cannot take; int and float convert into each other.
  virtual BOOL SetValue(ParamID id, TimeValue t, float v, int tabIndex = 0) = 0;
  virtual BOOL SetValue(ParamID id, TimeValue t, int v, int tabIndex = 0) = 0;
  virtual BOOL SetValue(ParamID id, TimeValue t, Color& v, int tabIndex = 0) = 0;
  virtual BOOL SetValue(ParamID id, TimeValue t, const MCHAR* v, int tabIndex = 0) = 0;
  virtual BOOL SetValue(ParamID id, TimeValue t, Mtl* v, int tabIndex = 0) = 0;
  virtual BOOL SetValue(ParamID id, TimeValue t, Texmap* v, int tabIndex = 0) = 0;

  virtual BOOL GetValue(ParamID id, TimeValue t, float& v, Interval& valid, int tabIndex = 0) = 0;
  virtual BOOL GetValue(ParamID id, TimeValue t, int& v, Interval& valid, int tabIndex = 0) = 0;
  virtual BOOL GetValue(ParamID id, TimeValue t, Color& v, Interval& valid, int tabIndex = 0) = 0;
  virtual BOOL GetValue(ParamID id, TimeValue t, const MCHAR*& v, Interval& valid, int tabIndex = 0) = 0;
  virtual BOOL GetValue(ParamID id, TimeValue t, Mtl*& v, Interval& valid, int tabIndex = 0) = 0;
  virtual BOOL GetValue(ParamID id, TimeValue t, Texmap*& v, Interval& valid, int tabIndex = 0) = 0;
};

/// In 3ds Max it adds services for parameter blocks, which no class of a global utility has.
class ClassDesc2 : public ClassDesc {};
