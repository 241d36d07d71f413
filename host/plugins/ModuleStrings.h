#pragma once

#include <windows.h>

#include <cstdint>
#include <map>
#include <string>

namespace host {

/// The string tables of loaded modules, each read when it is first needed.
class ModuleStrings {
 public:
  static ModuleStrings& instance();

  /// Null for an id that there is not, a module without a resource script, and a handle that is no loaded module's.
  const std::wstring* find(HINSTANCE module, std::uint32_t id);
  /// Call it before a module is unloaded: its handle may be another's afterwards.
  void forget(HINSTANCE module) { tables_.erase(module); }

 private:
  std::map<HINSTANCE, std::map<std::uint32_t, std::wstring>> tables_;
};

}  // namespace host
