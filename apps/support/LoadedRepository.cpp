#include "apps/support/LoadedRepository.h"

#include "apps/support/ParseNoteText.h"
#include "core/Settings.h"
#include "host/files/Paths.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "repository/Parser2.h"
#include "scene/SceneNotifications.h"

namespace apps {

namespace fs = std::filesystem;

namespace {

class NoteKeeper : public ZORVEL::ParseObserver {
 public:
  explicit NoteKeeper(std::vector<ZORVEL::ParseNote>& notes) : notes_(notes) {}
  void Noted(const ZORVEL::ParseNote& note) override { notes_.push_back(note); }

 private:
  std::vector<ZORVEL::ParseNote>& notes_;
};

}  // namespace

LoadedRepository::LoadedRepository(const fs::path& root) : appData_(settingsFolder_.path()) {
  ZORVEL::SceneNotifications::Register();
  error_ = load(root);
}

LoadedRepository::~LoadedRepository() {
  ZORVEL::SceneNotifications::Unregister();
  ZORVEL::Selection2::Reset();
  ZORVEL::Data2::Clear();
  ZORVEL::Settings::FreeSettings();
}

std::string LoadedRepository::load(const fs::path& root) {
  std::error_code ignored;
  if (settingsFolder_.path().empty()) return "No temporary folder can be made.";
  if (!fs::is_directory(root, ignored)) return root.string() + " is not a folder.";
  ZORVEL::Settings::LoadSettings();
  // The trailing separator is what choosing the file in the dialog of 3ds Max would leave.
  ZORVEL::Settings::StorePath((host::toWide(fs::absolute(root).string()) + L"\\").c_str());
  NoteKeeper keeper(notes_);
  const ZORVEL::ObservedParsing observed(keeper);
  if (!ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath())) {
    return notes_.empty() ? root.string() + " cannot be read." : lineOf(notes_.back(), root);
  }
  ZORVEL::Data2::SetValidated(true);
  return "";
}

}  // namespace apps
