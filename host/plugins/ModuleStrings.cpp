#include "host/plugins/ModuleStrings.h"

#include <dlfcn.h>
#include <link.h>

#include "host/plugins/ResourceScript.h"

namespace host {

namespace {

/// The loader's own list of modules: dlsym must not be asked about anything else.
bool isLoaded(HINSTANCE module) {
  for (const link_map* one = _r_debug.r_map; one != nullptr; one = one->l_next) {
    if (static_cast<const void*>(one) == static_cast<const void*>(module)) return true;
  }
  return false;
}

std::map<std::uint32_t, std::wstring> tableOf(HINSTANCE module) {
  using Script = const char* (*)();
  const auto script = reinterpret_cast<Script>(dlsym(module, "ModuleResourceScript"));
  const char* text = script != nullptr ? script() : nullptr;
  return text != nullptr ? stringTable(text) : std::map<std::uint32_t, std::wstring>();
}

}  // namespace

ModuleStrings& ModuleStrings::instance() {
  static ModuleStrings strings;
  return strings;
}

const std::wstring* ModuleStrings::find(HINSTANCE module, std::uint32_t id) {
  auto table = tables_.find(module);
  if (table == tables_.end()) {
    if (!isLoaded(module)) return nullptr;
    table = tables_.emplace(module, tableOf(module)).first;
  }
  const auto text = table->second.find(id);
  return text != table->second.end() ? &text->second : nullptr;
}

}  // namespace host
