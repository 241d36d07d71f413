#pragma once

#include <iparamb2.h>
#include <plugapi.h>
#include <strclass.h>

class Texmap;

class ISubMap {
 public:
  virtual ~ISubMap() = default;
  virtual int NumSubTexmaps() { return 0; }
  /// Null for an empty slot and for one that the class does not have.
  virtual Texmap* GetSubTexmap(int /*slot*/) { return nullptr; }
  virtual void SetSubTexmap(int /*slot*/, Texmap* /*map*/) {}
};

class MtlBase : public ReferenceTarget, public ISubMap {
 public:
  MSTR& GetName() { return name_; }
  void SetName(const MSTR& name) { name_ = name; }

 private:
  MSTR name_;
};

class Mtl : public MtlBase {
 public:
  SClass_ID SuperClassID() override { return MATERIAL_CLASS_ID; }
  virtual int NumSubMtls() { return 0; }
  virtual Mtl* GetSubMtl(int /*slot*/) { return nullptr; }
  virtual void SetSubMtl(int /*slot*/, Mtl* /*material*/) {}
};

class Texmap : public MtlBase {
 public:
  SClass_ID SuperClassID() override { return TEXMAP_CLASS_ID; }
};
