#pragma once

#include <QString>
#include <filesystem>
#include <vector>

namespace stage {

/// Reads what a loaded module records, where it exports the function ModuleLogLines: a diagnostic build does.
class ModuleLog {
 public:
  struct Line {
    /// 0 for progress, 1 for a warning, 2 for an error.
    int level;
    QString text;
  };

  /// Records nothing.
  ModuleLog() = default;
  /// The module must be loaded already; whoever unloads it drops this first.
  static ModuleLog of(const std::filesystem::path& module);

  bool records() const { return lines_ != nullptr; }
  /// The lines from that number on.
  std::vector<Line> linesFrom(int first) const;

 private:
  using Take = void (*)(void* to, int level, const wchar_t* text);
  /// Hands each line from `first` on to `take`.
  using Lines = void (*)(int first, Take take, void* to);

  Lines lines_ = nullptr;
};

}  // namespace stage
