#include "host/application/Accelerators.h"

#include <maxapi.h>

#include "host/application/Application.h"

namespace host {

void Accelerators::disable() {
  if (++holds_ == 1 && changed) changed();
}

void Accelerators::enable() {
  if (holds_ == 0) return;
  if (--holds_ == 0 && changed) changed();
}

}  // namespace host

void DisableAccelerators() { host::Application::instance().accelerators().disable(); }

void EnableAccelerators() { host::Application::instance().accelerators().enable(); }

BOOL AcceleratorsEnabled() { return host::Application::instance().accelerators().enabled() ? TRUE : FALSE; }
