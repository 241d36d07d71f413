#include "apps/stage/ModuleLog.h"

#include <dlfcn.h>

namespace stage {

ModuleLog ModuleLog::of(const std::filesystem::path& module) {
  ModuleLog log;
  void* handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle == nullptr) return log;
  log.lines_ = reinterpret_cast<Lines>(dlsym(handle, "ModuleLogLines"));
  // Whoever loaded the module keeps it.
  dlclose(handle);
  return log;
}

std::vector<ModuleLog::Line> ModuleLog::linesFrom(int first) const {
  std::vector<Line> result;
  if (lines_ == nullptr) return result;
  lines_(
      first,
      [](void* to, int level, const wchar_t* text) {
        static_cast<std::vector<Line>*>(to)->push_back({level, QString::fromWCharArray(text)});
      },
      &result);
  return result;
}

}  // namespace stage
