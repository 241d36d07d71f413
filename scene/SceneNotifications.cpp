#include "scene/SceneNotifications.h"

#include <inode.h>
#include <notify.h>

#include "core/Debug.h"
#include "scene/ProxyObjectDatabase.h"

namespace ZORVEL {

namespace {

void AfterNewScene(void* /*param*/, NotifyInfo* /*info*/) {
  Debug::AddDebugMessage(DEBUG_INFO, L"new max scene...");
  ProxyObjectDatabase::Clear();
}

// Material libraries and render presets are opened with the same code; only a scene file replaces the objects.
void AfterFileOpened(void* /*param*/, NotifyInfo* info) {
  if (info == nullptr || info->callParam == nullptr) return;
  if (*static_cast<FileIOType*>(info->callParam) != IOTYPE_MAX) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"open max file...");
  ProxyObjectDatabase::Clear();
}

void BeforeNodeDeleted(void* /*param*/, NotifyInfo* info) {
  if (info == nullptr || info->callParam == nullptr) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"PreNodeDelete");
  const Object* object = static_cast<INode*>(info->callParam)->GetObjectRef();
  if (object == nullptr) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"got obj...");
  ProxyObjectDatabase::Release(object);
}

}  // namespace

void SceneNotifications::Register() {
  RegisterNotification(AfterNewScene, nullptr, NOTIFY_SYSTEM_POST_NEW);
  RegisterNotification(AfterFileOpened, nullptr, NOTIFY_FILE_POST_OPEN);
  RegisterNotification(BeforeNodeDeleted, nullptr, NOTIFY_SCENE_PRE_DELETED_NODE);
}

void SceneNotifications::Unregister() {
  UnRegisterNotification(AfterNewScene, nullptr, NOTIFY_SYSTEM_POST_NEW);
  UnRegisterNotification(AfterFileOpened, nullptr, NOTIFY_FILE_POST_OPEN);
  UnRegisterNotification(BeforeNodeDeleted, nullptr, NOTIFY_SCENE_PRE_DELETED_NODE);
}

}  // namespace ZORVEL
