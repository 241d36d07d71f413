#include "plugin/zorvel.h"

#include <maxscript/maxscript.h>

#include "core/Debug.h"
#include "core/LogStore.h"
#include "core/Settings.h"
#include "model/Data2.h"
#include "plugin/ActionTable.h"
#include "scene/Placement.h"
#include "scene/SceneNotifications.h"
#include "ui/MaxForm.h"
#include "ui/PictureCache.h"

namespace ZORVEL {

namespace {

void Log(const wchar_t* text) { Debug::AddDebugMessage(DEBUG_INFO, text); }

}  // namespace

DWORD zorvel::Start() {
  ExecuteMAXScriptScript(L"qat.add \"ZORVEL\" \"ZORVEL Manager\"");
  LogStore::Create();
  Debug::ShowInfoWindow();
  Log(L"zorvel::Start - start plugin...");
  Log(L"zorvel::Start - load settings...");
  if (!Settings::LoadSettings()) {
    Log(L"zorvel::Start - could not load settings...");
    return GUPRESULT_KEEP;
  }
  Log(L"zorvel::Start - activate action...");
  ZORVELActionTable::Activate();
  SceneNotifications::Register();
  Log(L"zorvel::Start - plugin started...");
  return GUPRESULT_KEEP;
}

void zorvel::Stop() {
  ZORVELActionTable::Deactivate();
  Placement::Free();
  // No window may outlive the code of its events, no picture the toolkit.
  MaxForm::DeleteAll();
  PictureCache::Instance().Clear();
  Data2::Clear();
  Settings::FreeSettings();
  LogStore::Free();
  SceneNotifications::Unregister();
}

DWORD_PTR zorvel::Control(DWORD /*parameter*/) { return 0; }

IOResult zorvel::Save(ISave* /*isave*/) { return IO_OK; }

IOResult zorvel::Load(ILoad* /*iload*/) { return IO_OK; }

void zorvel::DeleteThis() { delete this; }

}  // namespace ZORVEL
