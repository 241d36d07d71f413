#include <iparamb2.h>

#include <new>

#include "plugin/ActionTable.h"
#include "plugin/Module.h"
#include "plugin/zorvel.h"

namespace ZORVEL {

namespace {

const int DESCRIPTION_RESOURCE = 1;
const int CATEGORY_RESOURCE = 2;
const int CLASS_NAME_RESOURCE = 3;

class zorvelClassDesc : public ClassDesc2 {
 public:
  int IsPublic() override { return 1; }
  void* Create(BOOL /*loading*/) override { return new (std::nothrow) zorvel; }
  int BeginCreate(Interface* /*host*/) override { return 0; }
  int EndCreate(Interface* /*host*/) override { return 0; }
  const MCHAR* ClassName() override { return Module::GetString(CLASS_NAME_RESOURCE); }
  SClass_ID SuperClassID() override { return GUP_CLASS_ID; }
  Class_ID ClassID() override { return Class_ID(0x269D2BA1, 0x25482A2C); }
  const MCHAR* Category() override { return Module::GetString(CATEGORY_RESOURCE); }
  BOOL OkToCreate(Interface* /*host*/) override { return TRUE; }
  int NumActionTables() override { return 1; }
  ActionTable* GetActionTable(int /*index*/) override { return ZORVELActionTable::Make(); }
  const MCHAR* InternalName() override { return L"zorvel"; }
  HINSTANCE HInstance() override { return Module::GetInstance(); }
};

}  // namespace

}  // namespace ZORVEL

extern "C" {

const MCHAR* LibDescription() { return ZORVEL::Module::GetString(ZORVEL::DESCRIPTION_RESOURCE); }

int LibNumberClasses() { return 1; }

ClassDesc* LibClassDesc(int i) {
  static ZORVEL::zorvelClassDesc description;
  return i == 0 ? &description : nullptr;
}

ULONG LibVersion() { return VERSION_3DSMAX; }

int LibInitialize() { return TRUE; }

int LibShutdown() { return TRUE; }

BOOL WINAPI DllMain(HINSTANCE instance, ULONG reason, LPVOID /*reserved*/) {
  if (reason == DLL_PROCESS_ATTACH) {
    ZORVEL::Module::SetInstance(instance);
    DisableThreadLibraryCalls(instance);
  }
  return TRUE;
}

}  // extern "C"
