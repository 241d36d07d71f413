#include <cwchar>

#include "core/Settings.h"
#include "fuzz/Require.h"
#include "fuzz/Targets.h"
#include "tests/support/LocalAppData.h"

namespace fuzz {

namespace {

/// What the file gives after what it gave was stored.
std::wstring loadedAgain(const std::wstring& path) {
  ZORVEL::Settings::StorePath(path.c_str());
  ZORVEL::Settings::LoadFromSettingsFile();
  return ZORVEL::Settings::GetPath();
}

}  // namespace

void settings(std::string_view bytes) {
  static const support::LocalAppData appData;
  appData.folder().write("zorvel.ini", bytes);
  ZORVEL::Settings::LoadSettings();
  if (ZORVEL::Settings::GetPathSet()) {
    const std::wstring path = ZORVEL::Settings::GetPath();
    require(loadedAgain(path) == path, "a path that was loaded is the same when it is stored");
  }
  ZORVEL::Settings::FreeSettings();
}

}  // namespace fuzz
