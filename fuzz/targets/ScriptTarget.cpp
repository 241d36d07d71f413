#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "host/actions/ActionManager.h"
#include "host/actions/QuickAccessBar.h"
#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/files/Paths.h"
#include "host/scripting/ScriptRunner.h"
#include "host/services/Listener.h"

namespace fuzz {

void script(std::string_view bytes) {
  host::ActionManager actions;
  host::QuickAccessBar quickAccess(actions);
  host::ScriptRunner runner(actions, quickAccess, host::Application::instance().interface());
  host::Listener& listener = host::Listener::instance();
  listener.clear();
  const bool ran = runner.run(host::toWide(bytes));
  require(ran == listener.lines().empty(), "either it ran or the listener says why not");
  listener.clear();
}

}  // namespace fuzz
