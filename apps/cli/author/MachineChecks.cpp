#include "apps/cli/author/MachineChecks.h"

#include <embree3/rtcore_config.h>
#include <libxml/parser.h>
#include <libxml/xmlversion.h>
#include <unistd.h>

#include <QtGlobal>
#include <filesystem>

#include "core/Disk.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "host/files/TemporaryFolder.h"
#include "model/RepositoryPaths.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

const char* const CHOOSE_AGAIN = "choose the repository again in the window's menu";

std::string compiler() {
#if defined(__clang__)
  return "Clang " __clang_version__;
#elif defined(__GNUC__)
  return "GCC " __VERSION__;
#else
  return "unknown";
#endif
}

/// C++ standards are numbered by the month of their publication.
std::string standard() { return "C++" + std::to_string(__cplusplus / 100 % 100) + ", the plug-in C++14"; }

/// What the loaded library says, as 20914.
std::string xmlVersion() {
  const int number = std::atoi(xmlParserVersion);
  return std::to_string(number / 10000) + '.' + std::to_string(number / 100 % 100) + '.' + std::to_string(number % 100);
}

Check writable(const std::string& name, const fs::path& folder) {
  std::error_code error;
  if (folder.empty() || !fs::is_directory(folder, error)) {
    return {name, folder.string() + " is not there", "make the folder, or name another"};
  }
  if (::access(folder.c_str(), R_OK | X_OK) != 0)
    return {name, folder.string() + " cannot be read", "ask for its rights"};
  if (::access(folder.c_str(), W_OK) != 0) return {name, folder.string() + " cannot be written", "ask for its rights"};
  return {name, folder.string() + " can be read and written"};
}

Check temporary() {
  const host::TemporaryFolder folder;
  std::error_code error;
  const std::string place = fs::temp_directory_path(error).string();
  if (folder.path().empty()) {
    return {"temporary folder", place.empty() ? "there is none" : place + " takes nothing",
            "set TMPDIR to one that does"};
  }
  return writable("temporary folder", fs::temp_directory_path(error));
}

Check settingsFolder() {
  std::wstring file;
  if (ZORVEL::Settings::FindSettingsFile(file))
    return writable("settings folder", host::nativePath(file).parent_path());
  return {"settings folder", "the user has none", "set HOME or LOCALAPPDATA to a folder that can be written"};
}

/// In the settings, where the window finds it.
Check chosenRepository() {
  std::wstring file;
  ZORVEL::Settings::FindSettingsFile(file);
  const std::string place = host::nativePath(file).string();
  ZORVEL::Settings::LoadSettings();
  const bool chosen = ZORVEL::Settings::GetPathSet();
  const std::wstring root = ZORVEL::Settings::GetPath();
  ZORVEL::Settings::FreeSettings();
  if (!chosen) return {"settings", place + " holds no repository yet"};
  const std::string text = place + " holds " + host::toUtf8(root);
  if (!ZORVEL::Disk::FileExists(ZORVEL::RepositoryPaths::Description(root))) {
    return {"settings", text + ", where no zorvel.xml is", CHOOSE_AGAIN};
  }
  const bool ends = root.back() == L'\\' || root.back() == L'/';
  return {"settings", text,
          ends ? "" : "the path has to end in a backslash, or no texture is found: " + std::string(CHOOSE_AGAIN)};
}

}  // namespace

Checks checkVersions() {
  return {{"program", std::string("zorvel ") + ZORVEL_VERSION},
          {"Qt", std::string(qVersion()) + ", built with " QT_VERSION_STR},
          {"libxml2", xmlVersion() + ", built with " LIBXML_DOTTED_VERSION},
          {"Embree", "built with " RTC_VERSION_STRING},
          {"compiler", compiler() + ", " + standard()}};
}

Checks checkFolders() {
  std::error_code error;
  return {temporary(), settingsFolder(), chosenRepository(), writable("current folder", fs::current_path(error))};
}

Check checkModule() {
  std::error_code error;
  const fs::path module = fs::read_symlink("/proc/self/exe", error).parent_path() / "zorvel.gup";
  if (fs::is_regular_file(module, error)) return {"module", module.string()};
  return {"module", module.string() + " is not there, and the stage loads it", "build the target zorvel"};
}

}  // namespace cli
