#include "apps/stage/ModuleLog.h"

#include <dlfcn.h>

namespace stage {

ModuleLog ModuleLog::of(const std::filesystem::path& module) {
  ModuleLog log;
  void* handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle == nullptr) return log;
  log.lines_ = reinterpret_cast<Lines>(dlsym(handle, "ModuleLogLines"));
  log.builds_ = reinterpret_cast<Builds>(dlsym(handle, "ModuleBuilds"));
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

std::vector<ModuleLog::Build> ModuleLog::buildsFrom(int first) const {
  std::vector<Build> result;
  if (builds_ == nullptr) return result;
  builds_(
      first,
      [](void* to, const wchar_t* summary, const wchar_t* sentences) {
        static_cast<std::vector<Build>*>(to)->push_back(
            {QString::fromWCharArray(summary), QString::fromWCharArray(sentences).split('\n', Qt::SkipEmptyParts)});
      },
      &result);
  return result;
}

}  // namespace stage
