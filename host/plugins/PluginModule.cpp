#include "host/plugins/PluginModule.h"

#include <dlfcn.h>

#include <algorithm>
#include <exception>

#include "host/actions/ActionManager.h"
#include "host/plugins/ModuleStrings.h"
#include "host/services/Listener.h"

namespace host {

namespace {

using DllMainFunction = BOOL(HINSTANCE, ULONG, LPVOID);
using NumberFunction = int();
using TextFunction = const MCHAR*();
using ClassFunction = ClassDesc*(int);
using VersionFunction = ULONG();

// Far more than any module has; a number beyond it is nonsense.
constexpr int MOST_CLASSES = 10000;
constexpr int MOST_TABLES = 1000;

std::string release(ULONG version) {
  return "release " + std::to_string(version >> 16U) + ", API number " + std::to_string((version >> 8U) & 0xFFU);
}

/// Foreign code may throw whatever it likes; none of it gets further than here.
template <class Call>
std::string guarded(const char* what, Call call) {
  try {
    return call();
  } catch (const std::exception& problem) {
    return std::string("threw an exception in ") + what + ": " + problem.what();
  } catch (...) {
    return std::string("threw an exception in ") + what;
  }
}

/// A name without a folder would be looked for among the system's libraries.
std::string fullPath(const std::filesystem::path& file) {
  std::error_code error;
  return std::filesystem::absolute(file, error).string();
}

std::string openingProblem(const std::string& file) {
  const char* message = dlerror();
  std::string reason = message != nullptr ? message : "unknown reason";
  if (reason.compare(0, file.size() + 2, file + ": ") == 0) reason.erase(0, file.size() + 2);
  return "is no module that can be loaded (" + reason + ")";
}

}  // namespace

PluginModule::~PluginModule() {
  stop();
  close();
}

template <class Function>
Function* PluginModule::find(const char* name) const {
  return reinterpret_cast<Function*>(dlsym(handle_, name));
}

HINSTANCE PluginModule::loadedHandle(const std::filesystem::path& file) {
  void* handle = dlopen(fullPath(file).c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return static_cast<HINSTANCE>(handle);
}

std::string PluginModule::open(const std::filesystem::path& file) {
  const std::string path = fullPath(file);
  handle_ = static_cast<HINSTANCE>(dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL));
  if (handle_ == nullptr) return openingProblem(path);
  return guarded("its entry functions", [this] { return introduce(); });
}

std::string PluginModule::missingExport() const {
  for (const char* name : {"LibDescription", "LibNumberClasses", "LibClassDesc", "LibVersion"}) {
    if (dlsym(handle_, name) == nullptr) return std::string("is no plug-in: it does not export ") + name;
  }
  return "";
}

// The revision does not matter: only release and API number decide whether classes have the same shape.
std::string PluginModule::checkVersion() const {
  const ULONG version = find<VersionFunction>("LibVersion")();
  if (version >> 8U == VERSION_3DSMAX >> 8U) return "";
  return "was made for " + release(version) + "; this host has " + release(VERSION_3DSMAX);
}

std::string PluginModule::introduce() {
  const std::string missing = missingExport();
  if (!missing.empty()) return missing;
  auto* dllMain = find<DllMainFunction>("DllMain");
  attached_ = dllMain != nullptr && dllMain(handle_, DLL_PROCESS_ATTACH, nullptr) != FALSE;
  if (dllMain != nullptr && !attached_) return "refused to be attached";
  const std::string otherVersion = checkVersion();
  if (!otherVersion.empty()) return otherVersion;
  auto* initialize = find<NumberFunction>("LibInitialize");
  if (initialize != nullptr && initialize() == FALSE) return "could not initialize";
  initialized_ = true;

  const MCHAR* description = find<TextFunction>("LibDescription")();
  if (description != nullptr) description_ = description;
  const int count = std::min(find<NumberFunction>("LibNumberClasses")(), MOST_CLASSES);
  for (int i = 0; i < count; ++i) {
    ClassDesc* one = find<ClassFunction>("LibClassDesc")(i);
    if (one != nullptr) classes_.push_back(one);
  }
  for (ClassDesc* one : classes_) registerTables(*one);
  return "";
}

void PluginModule::registerTables(ClassDesc& description) {
  const int count = std::min(description.NumActionTables(), MOST_TABLES);
  for (int i = 0; i < count; ++i) {
    ActionTable* table = description.GetActionTable(i);
    if (table == nullptr) continue;
    const ActionTableId id = table->GetId();
    actions_.RegisterActionTable(table);
    if (actions_.FindTable(id) == table) tables_.push_back(id);
  }
}

std::string PluginModule::start() {
  for (ClassDesc* one : classes_) {
    if (one->SuperClassID() != GUP_CLASS_ID) continue;
    const std::string problem = guarded("Start", [&] { return startUtility(*one); });
    if (!problem.empty()) return problem;
  }
  return "";
}

std::string PluginModule::startUtility(ClassDesc& description) {
  Utility utility(static_cast<GUP*>(description.Create(FALSE)));
  if (utility == nullptr) return "could not make its utility";
  const DWORD result = utility->Start();
  if (result == GUPRESULT_ABORT) return "gave up when it was started";
  if (result != GUPRESULT_NOKEEP) utilities_.push_back(std::move(utility));
  return "";
}

void PluginModule::stop() {
  const auto report = [](const std::string& problem) {
    if (!problem.empty()) Listener::instance().report("A module " + problem + ".");
  };
  for (; !utilities_.empty(); utilities_.pop_back()) {
    report(guarded("Stop", [this] {
      utilities_.back()->Stop();
      return std::string();
    }));
  }
  auto* shutDown = initialized_ ? find<NumberFunction>("LibShutdown") : nullptr;
  if (shutDown == nullptr) return;
  report(guarded("LibShutdown", [shutDown] {
    shutDown();
    return std::string();
  }));
}

void PluginModule::close() {
  for (auto id = tables_.rbegin(); id != tables_.rend(); ++id) actions_.removeTable(*id);
  if (handle_ == nullptr) return;
  ModuleStrings::instance().forget(handle_);
  if (attached_) {
    guarded("DllMain", [this] {
      find<DllMainFunction>("DllMain")(handle_, DLL_PROCESS_DETACH, nullptr);
      return std::string();
    });
  }
  dlclose(handle_);
}

}  // namespace host
