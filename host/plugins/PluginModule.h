#pragma once

#include <actiontable.h>
#include <gup.h>
#include <plugapi.h>

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace host {

class ActionManager;

/// One loaded module file. What was done for it is undone in reverse order when it ends, wherever loading stopped.
class PluginModule {
 public:
  /// Its action tables are registered there.
  explicit PluginModule(ActionManager& actions) : actions_(actions) {}
  ~PluginModule();
  PluginModule(const PluginModule&) = delete;
  PluginModule& operator=(const PluginModule&) = delete;

  /// The handle of a file that is in the process already, else null.
  static HINSTANCE loadedHandle(const std::filesystem::path& file);

  /// Loads the file and lets it introduce itself, up to its action tables. Empty, or what is wrong with it.
  std::string open(const std::filesystem::path& file);
  /// Makes and starts its utilities. Empty, or what went wrong.
  std::string start();

  HINSTANCE handle() const { return handle_; }
  /// What the module calls itself; empty for one that does not say.
  const std::wstring& description() const { return description_; }

 private:
  struct EndUtility {
    void operator()(GUP* utility) const { utility->DeleteThis(); }
  };
  using Utility = std::unique_ptr<GUP, EndUtility>;

  template <class Function>
  Function* find(const char* name) const;
  std::string missingExport() const;
  std::string checkVersion() const;
  std::string introduce();
  void registerTables(ClassDesc& description);
  std::string startUtility(ClassDesc& description);
  void stop();
  void close();

  ActionManager& actions_;
  HINSTANCE handle_ = nullptr;
  bool attached_ = false;
  bool initialized_ = false;
  std::wstring description_;
  std::vector<ClassDesc*> classes_;
  std::vector<ActionTableId> tables_;
  std::vector<Utility> utilities_;
};

}  // namespace host
