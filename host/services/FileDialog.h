#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace host {

/// Asks a person for a file to open. The window puts its own dialog here; without one every question is cancelled.
class FileDialog {
 public:
  struct Question {
    std::wstring title;
    /// What each kind of file is called, and its patterns, separated by semicolons, as "*.xml;*.txt".
    std::vector<std::pair<std::wstring, std::wstring>> filters;
    /// Windows-shaped; may be empty.
    std::wstring folder;
  };
  /// The chosen file on this machine, nothing when the person cancelled.
  using Provider = std::function<std::optional<std::filesystem::path>(const Question&)>;

  /// An empty one cancels.
  void setProvider(Provider provider) { provider_ = std::move(provider); }
  std::optional<std::filesystem::path> ask(const Question& question) const {
    return provider_ ? provider_(question) : std::nullopt;
  }

 private:
  Provider provider_;
};

}  // namespace host
