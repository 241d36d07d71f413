#include "apps/support/SettledRoot.h"

#include "core/Settings.h"
#include "host/files/Paths.h"

namespace apps {

namespace fs = std::filesystem;

namespace {

/// No folder: nothing is below it, and nothing can be made there.
const char* const NOWHERE = "/dev/null";

/// A path that is empty or cannot be told is no folder, not even the one that the program was started in.
fs::path absoluteOrNowhere(const fs::path& path) {
  std::error_code error;
  const fs::path absolute = path.empty() ? path : fs::absolute(path, error);
  return absolute.empty() || error ? NOWHERE : absolute;
}

}  // namespace

SettledRoot::SettledRoot(const fs::path& root) : appData_(NOWHERE) {
  ZORVEL::Settings::LoadSettings();
  // The trailing separator is what the dialog leaves.
  ZORVEL::Settings::StorePath((host::toWide(absoluteOrNowhere(root).string()) + L"\\").c_str());
}

SettledRoot::~SettledRoot() { ZORVEL::Settings::FreeSettings(); }

}  // namespace apps
