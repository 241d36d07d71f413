#include "host/actions/QuickAccessBar.h"

#include <algorithm>

#include "host/actions/ActionManager.h"

namespace host {

namespace {

/// The button that group and action name; a command of -1 for none.
QuickAccessBar::Button find(ActionManager& actions, const std::wstring& group, const std::wstring& action) {
  for (int i = 0; i < actions.NumActionTables(); ++i) {
    ActionTable& table = *actions.GetTable(i);
    if (group != table.GetName().data()) continue;
    const int command = ActionManager::findCommand(table, action);
    if (command >= 0) return {table.GetId(), command};
  }
  return {0, -1};
}

}  // namespace

int QuickAccessBar::add(const std::wstring& group, const std::wstring& action) {
  const Button button = find(actions_, group, action);
  if (button.command >= 0) return put(button);
  const auto pair = std::make_pair(group, action);
  if (std::find(waiting_.begin(), waiting_.end(), pair) == waiting_.end()) waiting_.push_back(pair);
  return -1;
}

int QuickAccessBar::put(const Button& button) {
  const auto same = [&](const Button& one) { return one.table == button.table && one.command == button.command; };
  const auto present = std::find_if(buttons_.begin(), buttons_.end(), same);
  if (present != buttons_.end()) return static_cast<int>(present - buttons_.begin());
  buttons_.push_back(button);
  if (changed) changed();
  return static_cast<int>(buttons_.size()) - 1;
}

void QuickAccessBar::followTables() {
  const auto gone = [this](const Button& button) { return actions_.FindTable(button.table) == nullptr; };
  const auto kept = std::remove_if(buttons_.begin(), buttons_.end(), gone);
  const bool lost = kept != buttons_.end();
  buttons_.erase(kept, buttons_.end());
  if (lost && changed) changed();
  std::vector<std::pair<std::wstring, std::wstring>> waiting;
  waiting.swap(waiting_);
  for (const auto& pair : waiting) add(pair.first, pair.second);
}

}  // namespace host
