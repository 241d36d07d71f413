#include "apps/cli/LoadedRepository.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "core/LogStore.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "repository/Parser2.h"
#include "scene/SceneNotifications.h"

namespace cli {

namespace fs = std::filesystem;

namespace {

/// A folder of our own for the settings file, so that loading a repository here changes nothing for the user.
fs::path makeSettingsFolder() {
  std::string name = (fs::temp_directory_path() / "zorvel-XXXXXX").string();
  return mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

bool wasLogged(const std::wstring& text) {
  const std::vector<ZORVEL::LogEntry> entries = ZORVEL::LogStore::Entries();
  return std::any_of(entries.begin(), entries.end(), [&](const auto& entry) { return entry.text == text; });
}

std::string whyUnreadable(const fs::path& root) {
  std::error_code ignored;
  if (!fs::is_directory(root, ignored)) return root.string() + " is not a folder.";
  if (wasLogged(L"ParseRepositoryXML: invalid character.xml")) {
    return root.string() + ": zorvel.xml cannot be read or is not well-formed XML.";
  }
  if (wasLogged(L"ParseRepositoryXML: invalid XML structure (zorvel)")) {
    return root.string() + ": the document element of zorvel.xml is not \"zorvel\".";
  }
  return root.string() + ": there is no zorvel.xml in this folder.";
}

}  // namespace

LoadedRepository::LoadedRepository(const fs::path& root) : settingsFolder_(makeSettingsFolder()) {
  if (!settingsFolder_.empty()) setenv("LOCALAPPDATA", settingsFolder_.c_str(), 1);
  ZORVEL::LogStore::Create();
  ZORVEL::SceneNotifications::Register();
  error_ = load(root);
}

LoadedRepository::~LoadedRepository() {
  ZORVEL::SceneNotifications::Unregister();
  ZORVEL::Selection2::Reset();
  ZORVEL::Data2::Clear();
  ZORVEL::Settings::FreeSettings();
  ZORVEL::LogStore::Free();
  std::error_code ignored;
  if (!settingsFolder_.empty()) fs::remove_all(settingsFolder_, ignored);
}

std::string LoadedRepository::load(const fs::path& root) const {
  if (settingsFolder_.empty()) return "No temporary folder can be made in " + fs::temp_directory_path().string() + ".";
  ZORVEL::Settings::LoadSettings();
  // The trailing separator is what choosing the file in the dialog of 3ds Max would leave.
  ZORVEL::Settings::StorePath((host::toWide(fs::absolute(root).string()) + L"\\").c_str());
  if (!ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath())) return whyUnreadable(root);
  ZORVEL::Data2::SetValidated(true);
  return "";
}

}  // namespace cli
