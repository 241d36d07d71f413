#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace host {

class ActionManager;
class CommandModes;
class PluginModule;
class UndoStack;

/// Loads plug-in modules, starts their utilities and takes all of it down again in reverse order.
class ModuleLoader {
 public:
  /// What modules leave there, modes and steps of their own included, is taken away before they go.
  ModuleLoader(ActionManager& actions, CommandModes& modes, UndoStack& undo);
  /// Shuts down what is still loaded.
  ~ModuleLoader();
  ModuleLoader(const ModuleLoader&) = delete;
  ModuleLoader& operator=(const ModuleLoader&) = delete;

  /// Registers the module's action tables, then starts its utilities. Empty on success; else one line that says why the
  /// file was refused, which goes to the listener too, and nothing of the module is left.
  std::string load(const std::filesystem::path& file);
  /// The last module loaded goes first: Stop, DeleteThis, LibShutdown, its action tables, then the file itself.
  void shutDown();

  std::size_t count() const { return modules_.size(); }
  /// What each module calls itself, in the order of loading.
  std::vector<std::wstring> descriptions() const;

 private:
  bool isLoaded(const std::filesystem::path& file) const;

  ActionManager& actions_;
  CommandModes& modes_;
  UndoStack& undo_;
  std::vector<std::unique_ptr<PluginModule>> modules_;
};

}  // namespace host
