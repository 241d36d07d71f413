#pragma once

#include <string>
#include <vector>

class Interface;

namespace host {

class ActionManager;
class QuickAccessBar;
struct ScriptToken;

/// Runs the script forms that the plug-in and its users need, and remembers every text:
///
///     qat.add "group" "action"
///     actionMan.executeAction tableId "commandId"
///     animButtonState=true
///
class ScriptRunner {
 public:
  ScriptRunner(ActionManager& actions, QuickAccessBar& quickAccess, Interface& interface)
      : actions_(actions), quickAccess_(quickAccess), interface_(interface) {}

  /// False, and a line for the listener, for a text that it does not understand and for an action that did not run. A
  /// button for an action that is not known yet is taken: it appears when the action does.
  bool run(const std::wstring& text);
  const std::vector<std::wstring>& texts() const { return texts_; }

 private:
  /// Empty, or what went wrong.
  std::string execute(const std::vector<ScriptToken>& tokens);

  ActionManager& actions_;
  QuickAccessBar& quickAccess_;
  Interface& interface_;
  std::vector<std::wstring> texts_;
};

}  // namespace host
