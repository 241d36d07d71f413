#include "apps/support/SettledRoot.h"

#include "core/Settings.h"
#include "host/files/Paths.h"

namespace apps {

SettledRoot::SettledRoot(const std::filesystem::path& root) : appData_(settingsFolder_.path()) {
  if (!isThere()) return;
  ZORVEL::Settings::LoadSettings();
  // An empty path is no folder, not even the one that the program was started in.
  std::error_code error;
  const std::filesystem::path named = root.empty() ? "/dev/null" : std::filesystem::absolute(root, error);
  // The trailing separator is what the dialog leaves.
  ZORVEL::Settings::StorePath((host::toWide(named.string()) + L"\\").c_str());
}

SettledRoot::~SettledRoot() {
  if (isThere()) ZORVEL::Settings::FreeSettings();
}

}  // namespace apps
