#include <maxapi.h>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/services/Accelerators.h"

namespace {

host::Accelerators& accelerators() { return host::Application::instance().accelerators(); }

}  // namespace

Interface* GetCOREInterface() { return &host::Application::instance().interface(); }

Interface13* GetCOREInterface13() { return &host::Application::instance().interface(); }

void DisableAccelerators() { accelerators().disable(); }

void EnableAccelerators() { accelerators().enable(); }

BOOL AcceleratorsEnabled() { return accelerators().enabled() ? TRUE : FALSE; }
