#include "host/plugins/ModuleLoader.h"

#include <algorithm>

#include "host/application/Application.h"
#include "host/application/Listener.h"
#include "host/modes/CommandModes.h"
#include "host/plugins/PluginModule.h"
#include "host/undo/UndoStack.h"

namespace host {

ModuleLoader::ModuleLoader() = default;

ModuleLoader::~ModuleLoader() { shutDown(); }

std::string ModuleLoader::load(const std::filesystem::path& file) {
  auto module = std::make_unique<PluginModule>();
  std::string problem = isLoaded(file) ? "is loaded already" : module->open(file);
  if (problem.empty()) problem = module->start();
  if (problem.empty()) {
    modules_.push_back(std::move(module));
    return "";
  }
  module.reset();
  const std::string line = "Module " + file.filename().string() + " " + problem + ".";
  Application::instance().listener().report(line);
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
  Application::instance().modes().returnToStandard();
  while (!modules_.empty()) {
    Application::instance().undo().clear();
    modules_.pop_back();
  }
}

std::vector<std::wstring> ModuleLoader::descriptions() const {
  std::vector<std::wstring> result;
  for (const auto& module : modules_) result.push_back(module->description());
  return result;
}

}  // namespace host
