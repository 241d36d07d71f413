#include "host/services/ActivationContexts.h"

namespace host {

ActivationContexts& ActivationContexts::instance() {
  static ActivationContexts contexts;
  return contexts;
}

HANDLE ActivationContexts::create(const ACTCTXW& request) {
  const bool named = (request.dwFlags & ACTCTX_FLAG_HMODULE_VALID) == 0 || request.hModule != nullptr;
  if (request.cbSize != sizeof(ACTCTXW) || !named) return INVALID_HANDLE_VALUE;
  // A number that leads nowhere: nobody but this class has anything to do with it.
  return *existing_.insert(reinterpret_cast<HANDLE>(++lastContext_)).first;
}

bool ActivationContexts::activate(HANDLE context, ULONG_PTR& cookie) {
  if (existing_.count(context) == 0) return false;
  cookie = ++lastCookie_;
  active_.push_back(cookie);
  return true;
}

bool ActivationContexts::deactivate(ULONG_PTR cookie) {
  if (active_.empty() || active_.back() != cookie) return false;
  active_.pop_back();
  return true;
}

}  // namespace host
