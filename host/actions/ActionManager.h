#pragma once

#include <actiontable.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// The tables of actions, which it owns, and the callbacks that are active for them.
class ActionManager final : public IActionManager {
 public:
  /// A second table of the same id, and null, are ended and not kept.
  void RegisterActionTable(ActionTable* table) override;
  int NumActionTables() override { return static_cast<int>(tables_.size()); }
  /// Null for an index or id that there is not.
  ActionTable* GetTable(int index) override;
  ActionTable* FindTable(ActionTableId id) override;
  /// 0 for a table that there is not and for one that another callback is active for.
  int ActivateActionTable(ActionCallback* callback, ActionTableId id) override;
  /// 0, and nothing changed, for another callback than the active one.
  int DeactivateActionTable(ActionCallback* callback, ActionTableId id) override;
  BOOL RegisterActionContext(ActionContextId id, const MCHAR* name) override;

  bool isActive(ActionTableId id) const { return active_.count(id) != 0; }
  /// Runs the command through the table's callback. False without an active one, for a command that the table has not,
  /// and when the callback does not handle it.
  bool executeAction(ActionTableId table, int command);
  /// The first command of the table whose button has that text; -1 for none.
  static int findCommand(ActionTable& table, const std::wstring& action);
  /// Ends the table, its binding, and its context when no other table is in it.
  void removeTable(ActionTableId id);
  /// Empty for an unknown one.
  std::wstring contextName(ActionContextId id) const;

  /// Called after a table came or went, or a callback became active or ceased to be; empty to begin with.
  std::function<void()> changed;

 private:
  struct EndTable {
    void operator()(ActionTable* table) const { table->DeleteThis(); }
  };

  void tellChanged();

  std::vector<std::unique_ptr<ActionTable, EndTable>> tables_;
  std::map<ActionTableId, ActionCallback*> active_;
  std::map<ActionContextId, std::wstring> contexts_;
};

}  // namespace host
