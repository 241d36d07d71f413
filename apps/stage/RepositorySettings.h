#pragma once

#include <filesystem>
#include <string>

#include "host/files/LocalAppData.h"
#include "host/files/TemporaryFolder.h"

namespace stage {

/// Settings of its own for the plug-in, naming one repository, for as long as this lives: the plug-in looks for them in
/// a temporary folder, and the user's are neither read nor written.
class RepositorySettings {
 public:
  /// Look at error() before anything else. Make it before the plug-in is loaded.
  explicit RepositorySettings(const std::filesystem::path& repository);

  /// One line; empty when the plug-in will find the repository.
  const std::string& error() const { return error_; }
  const std::filesystem::path& folder() const { return folder_.path(); }

 private:
  std::string write(const std::filesystem::path& repository) const;

  host::TemporaryFolder folder_;
  host::LocalAppData appData_;
  std::string error_;
};

}  // namespace stage
