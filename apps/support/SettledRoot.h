#pragma once

#include <filesystem>

#include "host/files/LocalAppData.h"

namespace apps {

/// The plug-in's settings with a repository's root in them, as choosing its file in the dialog of 3ds Max would leave
/// it, for as long as this lives. They are in memory only, and the user's own settings file is left alone. There is one
/// such thing at a time. A root that goes away meanwhile is noted among the troubles of the disk: what was read of it
/// since then looks as if nothing were there.
class SettledRoot {
 public:
  explicit SettledRoot(const std::filesystem::path& root);
  ~SettledRoot();
  SettledRoot(const SettledRoot&) = delete;
  SettledRoot& operator=(const SettledRoot&) = delete;

 private:
  std::filesystem::path root_;
  bool wasThere_;
  host::LocalAppData appData_;
};

}  // namespace apps
