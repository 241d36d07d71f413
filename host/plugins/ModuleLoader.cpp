#include "host/plugins/ModuleLoader.h"

#include <algorithm>

#include "host/modes/CommandModes.h"
#include "host/plugins/PluginModule.h"
#include "host/services/Listener.h"
#include "host/services/UndoStack.h"

namespace host {

ModuleLoader::ModuleLoader(ActionManager& actions, CommandModes& modes, UndoStack& undo)
    : actions_(actions), modes_(modes), undo_(undo) {}

ModuleLoader::~ModuleLoader() { shutDown(); }

std::string ModuleLoader::load(const std::filesystem::path& file) {
  auto module = std::make_unique<PluginModule>(actions_);
  std::string problem = isLoaded(file) ? "is loaded already" : module->open(file);
  if (problem.empty()) problem = module->start();
  if (problem.empty()) {
    modules_.push_back(std::move(module));
    return "";
  }
  module.reset();
  const std::string line = "Module " + file.filename().string() + " " + problem + ".";
  Listener::instance().report(line);
  return line;
}

bool ModuleLoader::isLoaded(const std::filesystem::path& file) const {
  const HINSTANCE handle = PluginModule::loadedHandle(file);
  return handle != nullptr &&
         std::any_of(modules_.begin(), modules_.end(), [handle](const auto& one) { return one->handle() == handle; });
}

void ModuleLoader::shutDown() {
  if (modules_.empty()) return;
  // Modes and steps of the undo list may be a module's own.
  modes_.returnToStandard();
  while (!modules_.empty()) {
    undo_.clear();
    modules_.pop_back();
  }
}

std::vector<std::wstring> ModuleLoader::descriptions() const {
  std::vector<std::wstring> result;
  for (const auto& module : modules_) result.push_back(module->description());
  return result;
}

}  // namespace host
