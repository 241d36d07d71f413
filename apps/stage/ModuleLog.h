#pragma once

#include <QStringList>
#include <filesystem>
#include <vector>

namespace stage {

/// Reads what a loaded module records, where it exports the functions ModuleLogLines and ModuleBuilds: a diagnostic
/// build does.
class ModuleLog {
 public:
  struct Line {
    /// 0 for progress, 1 for a warning, 2 for an error.
    int level;
    QString text;
  };

  struct Build {
    /// Empty when the character lacks nothing, as the sentences are.
    QString summary;
    QStringList sentences;
  };

  /// Records nothing.
  ModuleLog() = default;
  /// The module must be loaded already; whoever unloads it drops this first.
  static ModuleLog of(const std::filesystem::path& module);

  bool records() const { return lines_ != nullptr; }
  /// The lines from that number on.
  std::vector<Line> linesFrom(int first) const;
  /// What became of each character, from that number on.
  std::vector<Build> buildsFrom(int first) const;

 private:
  using Take = void (*)(void* to, int level, const wchar_t* text);
  /// Hands each line from `first` on to `take`.
  using Lines = void (*)(int first, Take take, void* to);

  using TakeBuild = void (*)(void* to, const wchar_t* summary, const wchar_t* sentences);
  using Builds = void (*)(int first, TakeBuild take, void* to);

  Lines lines_ = nullptr;
  Builds builds_ = nullptr;
};

}  // namespace stage
