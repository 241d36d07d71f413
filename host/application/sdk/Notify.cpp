#include <notify.h>

#include "host/application/Application.h"
#include "host/services/Notifications.h"

namespace {

host::Notifications& notifications() { return host::Application::instance().notifications(); }

}  // namespace

int RegisterNotification(NOTIFYPROC proc, void* param, int code) {
  if (proc == nullptr) return 0;
  notifications().add(proc, param, code);
  return 1;
}

int UnRegisterNotification(NOTIFYPROC proc, void* param, int code) {
  return notifications().remove(proc, param, code) ? 1 : 0;
}

void BroadcastNotification(int code) { notifications().broadcast(code, nullptr); }

void BroadcastNotification(int code, void* callParam) { notifications().broadcast(code, callParam); }
