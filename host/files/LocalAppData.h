#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace host {

/// Makes a folder the user's local application data, as this program sees it, for as long as this lives. An empty path
/// changes nothing.
class LocalAppData {
 public:
  explicit LocalAppData(const std::filesystem::path& folder);
  ~LocalAppData();
  LocalAppData(const LocalAppData&) = delete;
  LocalAppData& operator=(const LocalAppData&) = delete;

 private:
  std::optional<std::string> previous_;
  bool changed_ = false;
};

}  // namespace host
