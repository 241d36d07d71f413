#include "scene/SceneNotifications.h"

#include <inode.h>
#include <notify.h>

#include "core/Debug.h"
#include "scene/Placement.h"
#include "scene/ProxyObjectDatabase.h"

namespace ZORVEL {

namespace {

/// The objects of the old scene are gone, and so is the node that was being placed.
void ForgetScene() {
  ProxyObjectDatabase::Clear();
  Placement::End();
}

void AfterNewScene(void* /*param*/, NotifyInfo* /*info*/) {
  Debug::AddDebugMessage(DEBUG_INFO, L"new max scene...");
  ForgetScene();
}

// Material libraries and render presets are opened with the same code; only a scene file replaces the objects.
void AfterFileOpened(void* /*param*/, NotifyInfo* info) {
  if (info == nullptr || info->callParam == nullptr) return;
  if (*static_cast<FileIOType*>(info->callParam) != IOTYPE_MAX) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"open max file...");
  ForgetScene();
}

void BeforeNodeDeleted(void* /*param*/, NotifyInfo* info) {
  if (info == nullptr || info->callParam == nullptr) return;
  Debug::AddDebugMessage(DEBUG_INFO, L"PreNodeDelete");
  auto* node = static_cast<INode*>(info->callParam);
  // Undo takes nodes away too, in the middle of a placement as at any time.
  if (node == Placement::GetNode()) Placement::End();
  const Object* object = node->GetObjectRef();
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
