#pragma once

#include <ifnpub.h>
#include <maxicon.h>
#include <strclass.h>

#include <vector>

using ActionTableId = DWORD;
using ActionContextId = DWORD;

/// A command with the string resources of its texts.
struct ActionDescription {
  int mCmdID;
  int mDescriptionResourceID;
  int mShortNameResourceID;
  int mCategoryResourceID;
};

/// Runs the commands of the table that it is activated for; stays its maker's.
class ActionCallback : public InterfaceServer {
 public:
  /// TRUE when the command was handled.
  virtual BOOL ExecuteAction(int /*commandId*/) { return FALSE; }
};

/// Commands that toolbars, menus, shortcuts and scripts can reach. Once handed to the host it is the host's.
class ActionTable : public InterfaceServer {
 public:
  /// Texts are read from the module's string table now; one that is missing stays empty.
  ActionTable(ActionTableId id, ActionContextId contextId, MSTR& name, HACCEL defaults, int count,
              ActionDescription* descriptions, HINSTANCE instance);

  int Count() const { return static_cast<int>(actions_.size()); }
  ActionTableId GetId() const { return id_; }
  ActionContextId GetContextId() const { return contextId_; }
  MSTR& GetName() { return name_; }
  /// The icon stays the table's; null for none.
  virtual MaxIcon* GetIcon(int /*commandId*/) { return nullptr; }
  virtual BOOL GetButtonText(int commandId, MSTR& text);
  virtual BOOL GetDescriptionText(int commandId, MSTR& text);
  /// -1 for an index that there is not.
  int CommandAt(int index) const;
  virtual void DeleteThis() { delete this; }

 private:
  struct Action {
    int id;
    MSTR description;
    MSTR shortName;
    MSTR category;
  };

  const Action* find(int commandId) const;

  ActionTableId id_;
  ActionContextId contextId_;
  MSTR name_;
  std::vector<Action> actions_;
};

class IActionManager {
 public:
  virtual ~IActionManager() = default;
  /// The table becomes the host's.
  virtual void RegisterActionTable(ActionTable* table) = 0;
  virtual int NumActionTables() = 0;
  virtual ActionTable* GetTable(int index) = 0;
  virtual ActionTable* FindTable(ActionTableId id) = 0;
  /// Binds the callback to the table; non-zero on success. The callback must live until it is deactivated.
  virtual int ActivateActionTable(ActionCallback* callback, ActionTableId id) = 0;
  virtual int DeactivateActionTable(ActionCallback* callback, ActionTableId id) = 0;
  /// FALSE, and nothing changed, when the id is taken.
  virtual BOOL RegisterActionContext(ActionContextId id, const MCHAR* name) = 0;
};
