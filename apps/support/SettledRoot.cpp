#include "apps/support/SettledRoot.h"

#include "core/Settings.h"
#include "host/files/Paths.h"

namespace apps {

SettledRoot::SettledRoot(const std::filesystem::path& root) : appData_(settingsFolder_.path()) {
  if (!isThere()) return;
  ZORVEL::Settings::LoadSettings();
  // The trailing separator is what the dialog leaves.
  ZORVEL::Settings::StorePath((host::toWide(std::filesystem::absolute(root).string()) + L"\\").c_str());
}

SettledRoot::~SettledRoot() {
  if (isThere()) ZORVEL::Settings::FreeSettings();
}

}  // namespace apps
