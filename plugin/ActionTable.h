#pragma once

#include <actiontable.h>

#include <memory>

namespace ZORVEL {

/// The table with the plug-in's one action, which opens the main window.
class ZORVELActionTable : public ActionTable {
 public:
  ZORVELActionTable(MSTR& name, ActionDescription& description, HINSTANCE instance);

  /// The same icon for every command, made on first request.
  MaxIcon* GetIcon(int cmdId) override;

  /// Makes the table and registers its context. The host asks once and owns the result.
  static ActionTable* Make();
  /// From here on the table's action opens the main window.
  static void Activate();
  /// Harmless when the table is not active.
  static void Deactivate();

 private:
  std::unique_ptr<MaxIcon> m_icon;
};

/// Opens the main window, whatever the action.
class ZorvelActionCallback : public ActionCallback {
 public:
  BOOL ExecuteAction(int id) override;
};

}  // namespace ZORVEL
