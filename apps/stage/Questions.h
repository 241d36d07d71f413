#pragma once

#include <QString>
#include <filesystem>
#include <optional>

namespace stage {

/// What is asked of the person at the screen. This one asks nobody: files are not chosen, and unsaved changes are given
/// up.
class Questions {
 public:
  enum class Unsaved { Save, Discard, Cancel };
  using File = std::optional<std::filesystem::path>;

  Questions() = default;
  virtual ~Questions() = default;
  Questions(const Questions&) = delete;
  Questions& operator=(const Questions&) = delete;

  /// `filter` as Qt writes it; nothing when the person cancelled.
  virtual File openFile(const QString& /*title*/, const QString& /*filter*/) { return std::nullopt; }
  /// A name without suffix gets `suffix`.
  virtual File saveFile(const QString& /*title*/, const QString& /*filter*/, const QString& /*suffix*/) {
    return std::nullopt;
  }
  virtual Unsaved unsavedChanges(const QString& /*name*/) { return Unsaved::Discard; }
};

}  // namespace stage
