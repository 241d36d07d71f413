#pragma once

#include <actiontable.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace host {

class ActionManager;

/// The tool bar that scripts fill: which buttons stand on it, in which order.
class QuickAccessBar {
 public:
  struct Button {
    ActionTableId table;
    int command;
  };

  explicit QuickAccessBar(ActionManager& actions) : actions_(actions) {}

  /// The action whose table has the name `group` and whose button has the text `action`. Its position, also when it
  /// stood there before; -1 for a pair that is not known yet, which gets its button when such a table is registered.
  int add(const std::wstring& group, const std::wstring& action);
  const std::vector<Button>& buttons() const { return buttons_; }
  /// Adds what waited for a table, drops the buttons of tables that are gone. The application calls it when tables
  /// changed.
  void followTables();

  /// Called after buttons came or went; empty to begin with. Buttons do nothing while no callback is active.
  std::function<void()> changed;

 private:
  int put(const Button& button);

  ActionManager& actions_;
  std::vector<Button> buttons_;
  std::vector<std::pair<std::wstring, std::wstring>> waiting_;
};

}  // namespace host
