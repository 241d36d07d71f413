#include "host/actions/ActionManager.h"

#include <algorithm>

namespace host {

void ActionManager::tellChanged() {
  if (changed) changed();
}

void ActionManager::RegisterActionTable(ActionTable* table) {
  if (table == nullptr) return;
  std::unique_ptr<ActionTable, EndTable> owned(table);
  ActionTable* known = FindTable(table->GetId());
  // The very table again stays registered once.
  if (known == table) static_cast<void>(owned.release());
  if (known != nullptr) return;
  tables_.push_back(std::move(owned));
  tellChanged();
}

ActionTable* ActionManager::GetTable(int index) {
  if (index < 0 || index >= NumActionTables()) return nullptr;
  return tables_[static_cast<std::size_t>(index)].get();
}

ActionTable* ActionManager::FindTable(ActionTableId id) {
  const auto found =
      std::find_if(tables_.begin(), tables_.end(), [id](const auto& table) { return table->GetId() == id; });
  return found != tables_.end() ? found->get() : nullptr;
}

int ActionManager::ActivateActionTable(ActionCallback* callback, ActionTableId id) {
  if (callback == nullptr || FindTable(id) == nullptr) return 0;
  const auto bound = active_.emplace(id, callback);
  if (bound.second) tellChanged();
  return bound.first->second == callback ? 1 : 0;
}

int ActionManager::DeactivateActionTable(ActionCallback* callback, ActionTableId id) {
  const auto bound = active_.find(id);
  if (bound == active_.end() || bound->second != callback) return 0;
  active_.erase(bound);
  tellChanged();
  return 1;
}

BOOL ActionManager::RegisterActionContext(ActionContextId id, const MCHAR* name) {
  return contexts_.emplace(id, name != nullptr ? name : L"").second ? TRUE : FALSE;
}

bool ActionManager::executeAction(ActionTableId table, int command) {
  const auto bound = active_.find(table);
  ActionTable* actions = FindTable(table);
  MSTR text;
  if (bound == active_.end() || actions == nullptr || actions->GetButtonText(command, text) == FALSE) return false;
  return bound->second->ExecuteAction(command) != FALSE;
}

int ActionManager::findCommand(ActionTable& table, const std::wstring& action) {
  for (int i = 0; i < table.Count(); ++i) {
    MSTR text;
    const int command = table.CommandAt(i);
    if (table.GetButtonText(command, text) != FALSE && action == text.data()) return command;
  }
  return -1;
}

void ActionManager::removeTable(ActionTableId id) {
  const auto found =
      std::find_if(tables_.begin(), tables_.end(), [id](const auto& table) { return table->GetId() == id; });
  if (found == tables_.end()) return;
  const ActionContextId context = (*found)->GetContextId();
  active_.erase(id);
  tables_.erase(found);
  const bool inUse = std::any_of(tables_.begin(), tables_.end(),
                                 [context](const auto& table) { return table->GetContextId() == context; });
  if (!inUse) contexts_.erase(context);
  tellChanged();
}

std::wstring ActionManager::contextName(ActionContextId id) const {
  const auto found = contexts_.find(id);
  return found != contexts_.end() ? found->second : L"";
}

}  // namespace host
