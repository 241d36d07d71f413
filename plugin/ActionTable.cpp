#include "plugin/ActionTable.h"

#include <maxapi.h>

#include "core/Debug.h"
#include "plugin/Commands.h"
#include "plugin/Module.h"

namespace ZORVEL {

namespace {

/// Of the table and of its context.
const DWORD TABLE_ID = 0x0B250BC2;
const int OPEN_COMMAND = 40001;
const int ACTION_NAME_RESOURCE = 6;
const wchar_t* const TABLE_NAME = L"ZORVEL";

std::unique_ptr<ZorvelActionCallback> callback;

}  // namespace

ZORVELActionTable::ZORVELActionTable(MSTR& name, ActionDescription& description, HINSTANCE instance)
    : ActionTable(TABLE_ID, TABLE_ID, name, nullptr, 1, &description, instance) {}

MaxIcon* ZORVELActionTable::GetIcon(int /*cmdId*/) {
  if (!m_icon) m_icon = std::make_unique<MaxBmpFileIcon>(L"zorvel", 1);
  return m_icon.get();
}

ActionTable* ZORVELActionTable::Make() {
  MSTR name(TABLE_NAME);
  ActionDescription description = {OPEN_COMMAND, ACTION_NAME_RESOURCE, ACTION_NAME_RESOURCE, ACTION_NAME_RESOURCE};
  ActionTable* table = new ZORVELActionTable(name, description, Module::GetInstance());
  GetCOREInterface()->GetActionManager()->RegisterActionContext(TABLE_ID, TABLE_NAME);
  return table;
}

void ZORVELActionTable::Activate() {
  callback = std::make_unique<ZorvelActionCallback>();
  GetCOREInterface()->GetActionManager()->ActivateActionTable(callback.get(), TABLE_ID);
}

void ZORVELActionTable::Deactivate() {
  GetCOREInterface()->GetActionManager()->DeactivateActionTable(callback.get(), TABLE_ID);
  callback.reset();
}

BOOL ZorvelActionCallback::ExecuteAction(int /*id*/) {
  Debug::AddDebugMessage(DEBUG_INFO, L"Action called...");
  Commands::CallMainWindow();
  return TRUE;
}

}  // namespace ZORVEL
