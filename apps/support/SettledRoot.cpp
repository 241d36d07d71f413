#include "apps/support/SettledRoot.h"

#include "core/Settings.h"
#include "host/files/DiskTroubles.h"
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

bool isThere(const fs::path& path) {
  std::error_code unknown;
  return fs::exists(path, unknown);
}

}  // namespace

SettledRoot::SettledRoot(const fs::path& root)
    : root_(absoluteOrNowhere(root)), wasThere_(isThere(root_)), appData_(NOWHERE) {
  ZORVEL::Settings::LoadSettings();
  // The trailing separator is what the dialog leaves.
  ZORVEL::Settings::StorePath((host::toWide(root_.string()) + L"\\").c_str());
}

SettledRoot::~SettledRoot() {
  ZORVEL::Settings::FreeSettings();
  if (wasThere_ && !isThere(root_)) host::DiskTroubles::instance().noteGone(root_.string());
}

}  // namespace apps
