#include "apps/stage/ModuleCharacter.h"

#include <dlfcn.h>

namespace stage {

ModuleCharacter ModuleCharacter::of(const std::filesystem::path& module) {
  ModuleCharacter character;
  void* handle = dlopen(module.c_str(), RTLD_LAZY | RTLD_NOLOAD);
  if (handle == nullptr) return character;
  character.create_ = reinterpret_cast<void (*)()>(dlsym(handle, "ModuleCreateCharacter"));
  // Whoever loaded the module keeps it.
  dlclose(handle);
  return character;
}

void ModuleCharacter::create() const {
  if (create_ != nullptr) create_();
}

}  // namespace stage
