#include "host/scripting/ScriptRunner.h"

#include <maxscript/maxscript.h>

#include <algorithm>
#include <cwctype>

#include "host/application/Application.h"
#include "host/application/HostInterface.h"
#include "host/application/Listener.h"
#include "host/files/Paths.h"

namespace host {

namespace {

std::wstring withoutBlanks(std::wstring text) {
  text.erase(std::remove_if(text.begin(), text.end(), [](wchar_t c) { return std::iswspace(c) != 0; }), text.end());
  return text;
}

}  // namespace

bool ScriptRunner::run(const std::wstring& text) {
  texts_.push_back(text);
  const std::wstring form = withoutBlanks(text);
  HostInterface& interface = Application::instance().interface();
  if (form == L"animButtonState=false" || form == L"animButtonState=true") {
    interface.SetAnimateButtonState(form == L"animButtonState=true" ? TRUE : FALSE);
    return true;
  }
  Application::instance().listener().report("Script not understood: " + toUtf8(text));
  return false;
}

}  // namespace host

BOOL ExecuteMAXScriptScript(const MCHAR* text, BOOL /*quietErrors*/, FPValue* /*value*/) {
  return text != nullptr && host::Application::instance().scripts().run(text) ? TRUE : FALSE;
}
