#include "host/services/ActivationContexts.h"

HANDLE WINAPI CreateActCtxW(PCACTCTXW request) {
  return request != nullptr ? host::ActivationContexts::instance().create(*request) : INVALID_HANDLE_VALUE;
}

BOOL WINAPI ActivateActCtx(HANDLE context, ULONG_PTR* cookie) {
  return cookie != nullptr && host::ActivationContexts::instance().activate(context, *cookie) ? TRUE : FALSE;
}

BOOL WINAPI DeactivateActCtx(DWORD /*flags*/, ULONG_PTR cookie) {
  return host::ActivationContexts::instance().deactivate(cookie) ? TRUE : FALSE;
}

void WINAPI ReleaseActCtx(HANDLE context) { host::ActivationContexts::instance().release(context); }
