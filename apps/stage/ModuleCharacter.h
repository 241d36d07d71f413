#pragma once

#include <filesystem>

namespace stage {

/// Has a loaded module create a character, where it exports the function ModuleCreateCharacter: a diagnostic build
/// does.
class ModuleCharacter {
 public:
  /// Cannot.
  ModuleCharacter() = default;
  /// The module must be loaded already; whoever unloads it drops this first.
  static ModuleCharacter of(const std::filesystem::path& module);

  bool canCreate() const { return create_ != nullptr; }
  void create() const;

 private:
  void (*create_)() = nullptr;
};

}  // namespace stage
