// A small plug-in module. What it is told goes to the host as script texts, in order. Definitions make it a broken one.

#include <max.h>
#include <maxscript/maxscript.h>

#include <stdexcept>

#ifndef MODULE_VERSION
#define MODULE_VERSION VERSION_3DSMAX
#endif
#ifndef MODULE_INITIALIZES
#define MODULE_INITIALIZES TRUE
#endif
#ifndef MODULE_DESCRIPTOR
#define MODULE_DESCRIPTOR &descriptor
#endif
#ifndef MODULE_STARTS
#define MODULE_STARTS return GUPRESULT_KEEP
#endif

namespace {

constexpr ActionTableId TABLE = 0x1234;
constexpr int COMMAND = 7;
HINSTANCE instance = nullptr;

void note(const MCHAR* text) { ExecuteMAXScriptScript(text); }

class Callback : public ActionCallback {
  BOOL ExecuteAction(int /*commandId*/) override {
    note(L"action");
    return TRUE;
  }
};

class Table : public ActionTable {
 public:
  Table(MSTR& name, ActionDescription* action) : ActionTable(TABLE, TABLE, name, nullptr, 1, action, instance) {}
  ~Table() override { note(L"table ended"); }
};

class Utility : public GUP {
 public:
  DWORD Start() override {
    note(L"qat.add \"Test Group\" \"Do \\\"it\\\"\"");
    const bool found = GetCOREInterface()->GetActionManager()->ActivateActionTable(&callback_, TABLE) != 0;
    note(found ? L"started with table" : L"started without table");
    MODULE_STARTS;
  }
  void Stop() override {
    GetCOREInterface()->GetActionManager()->DeactivateActionTable(&callback_, TABLE);
    note(L"stopped");
  }
  void DeleteThis() override {
    note(L"deleted");
    delete this;
  }

 private:
  Callback callback_;
};

class Descriptor : public ClassDesc2 {
 public:
  int IsPublic() override { return 1; }
  void* Create(BOOL /*loading*/) override { return new Utility; }
  const MCHAR* ClassName() override { return L"test"; }
  SClass_ID SuperClassID() override { return GUP_CLASS_ID; }
  Class_ID ClassID() override { return Class_ID(1, 2); }
  const MCHAR* Category() override { return L"test"; }
  int NumActionTables() override { return 2; }
  ActionTable* GetActionTable(int index) override {
    if (index == 1) return nullptr;
    MSTR name(L"Test Group");
    ActionDescription action{COMMAND, 2, 3, 2};
    GetCOREInterface()->GetActionManager()->RegisterActionContext(TABLE, name);
    return new Table(name, &action);
  }
};

Descriptor descriptor;

}  // namespace

extern "C" {

BOOL WINAPI DllMain(HINSTANCE module, ULONG reason, LPVOID /*reserved*/) {
  instance = module;
  note(reason == DLL_PROCESS_ATTACH ? L"attached" : L"detached");
  return DisableThreadLibraryCalls(module);
}

const char* ModuleResourceScript() {
  return "#define IDS_BUTTON 3\nSTRINGTABLE\nBEGIN\n 2, \"Does it\"\n IDS_BUTTON \"Do \"\"it\"\"\"\nEND\n";
}

const MCHAR* LibDescription() { return L"A module for tests"; }
int LibNumberClasses() { return 2; }
ClassDesc* LibClassDesc(int index) {
  if (index != 0) return nullptr;
  return MODULE_DESCRIPTOR;
}
ULONG LibVersion() { return MODULE_VERSION; }
int LibInitialize() {
  note(L"initialized");
  return MODULE_INITIALIZES;
}
int LibShutdown() {
  note(L"shut down");
  return TRUE;
}

}  // extern "C"
