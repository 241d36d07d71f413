#pragma once

#include <ifnpub.h>
#include <maxtypes.h>

class ActionTable;
class Interface;

/// Release, API number and SDK revision of 3ds Max 2018.
constexpr ULONG MAX_RELEASE = 20000;
constexpr ULONG MAX_API_NUM = 50;
constexpr ULONG MAX_SDK_REV = 0;
constexpr ULONG VERSION_3DSMAX = (MAX_RELEASE << 16U) + (MAX_API_NUM << 8U) + MAX_SDK_REV;

constexpr SClass_ID BASENODE_CLASS_ID = 0x01;
constexpr SClass_ID PARAMETER_BLOCK2_CLASS_ID = 0x82;
constexpr SClass_ID GEOMOBJECT_CLASS_ID = 0x10;
constexpr SClass_ID SHAPE_CLASS_ID = 0x40;
constexpr SClass_ID HELPER_CLASS_ID = 0x50;
constexpr SClass_ID MATERIAL_CLASS_ID = 0xC00;
constexpr SClass_ID TEXMAP_CLASS_ID = 0xC10;
constexpr SClass_ID GUP_CLASS_ID = 0x10E0;
constexpr SClass_ID LAYER_CLASS_ID = 0x10F0;

constexpr ULONG CIRCLE_CLASS_ID = 0x1999;
constexpr ULONG DUMMY_CLASS_ID = 0x876234;
constexpr ULONG DMTL_CLASS_ID = 0x2;
constexpr ULONG MULTI_CLASS_ID = 0x200;
constexpr ULONG BMTEX_CLASS_ID = 0x240;

/// Describes one class of a module to the host. Texts are borrowed from the module.
class ClassDesc : public InterfaceServer {
 public:
  virtual int IsPublic() = 0;
  /// The object becomes the host's, which ends it by its own DeleteThis. Null when memory is short.
  virtual void* Create(BOOL loading = FALSE) = 0;
  virtual int BeginCreate(Interface* /*host*/) { return 0; }
  virtual int EndCreate(Interface* /*host*/) { return 0; }
  virtual const MCHAR* ClassName() = 0;
  virtual SClass_ID SuperClassID() = 0;
  virtual Class_ID ClassID() = 0;
  virtual const MCHAR* Category() = 0;
  virtual BOOL OkToCreate(Interface* /*host*/) { return TRUE; }
  virtual int NumActionTables() { return 0; }
  /// The table becomes the host's.
  virtual ActionTable* GetActionTable(int /*index*/) { return nullptr; }
  virtual const MCHAR* InternalName() { return nullptr; }
  virtual HINSTANCE HInstance() { return nullptr; }
};
