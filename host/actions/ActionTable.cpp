#include <actiontable.h>

#include <array>

namespace {

MSTR resourceText(HINSTANCE instance, int id) {
  std::array<wchar_t, 512> buffer{};
  if (id < 0) return {};
  return LoadStringW(instance, static_cast<UINT>(id), buffer.data(), static_cast<int>(buffer.size())) > 0
             ? MSTR(buffer.data())
             : MSTR();
}

}  // namespace

ActionTable::ActionTable(ActionTableId id, ActionContextId contextId, MSTR& name, HACCEL /*defaults*/, int count,
                         ActionDescription* descriptions, HINSTANCE instance)
    : id_(id), contextId_(contextId), name_(name) {
  for (int i = 0; i < count && descriptions != nullptr; ++i) {
    const ActionDescription& one = descriptions[i];
    actions_.push_back({one.mCmdID, resourceText(instance, one.mDescriptionResourceID),
                        resourceText(instance, one.mShortNameResourceID),
                        resourceText(instance, one.mCategoryResourceID)});
  }
}

const ActionTable::Action* ActionTable::find(int commandId) const {
  for (const Action& action : actions_) {
    if (action.id == commandId) return &action;
  }
  return nullptr;
}

BOOL ActionTable::GetButtonText(int commandId, MSTR& text) {
  const Action* action = find(commandId);
  if (action == nullptr) return FALSE;
  text = action->shortName;
  return TRUE;
}

BOOL ActionTable::GetDescriptionText(int commandId, MSTR& text) {
  const Action* action = find(commandId);
  if (action == nullptr) return FALSE;
  text = action->description;
  return TRUE;
}

int ActionTable::CommandAt(int index) const {
  return index >= 0 && index < Count() ? actions_[static_cast<std::size_t>(index)].id : -1;
}
