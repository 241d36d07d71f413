#include <maxscript/maxscript.h>

#include "host/application/Application.h"
#include "host/scripting/ScriptRunner.h"

BOOL ExecuteMAXScriptScript(const MCHAR* text, BOOL /*quietErrors*/, FPValue* /*value*/) {
  return text != nullptr && host::Application::instance().scripts().run(text) ? TRUE : FALSE;
}
