#include "apps/support/LoadedRepository.h"

#include "apps/support/ParseNoteText.h"
#include "core/Settings.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "repository/Parser2.h"
#include "scene/SceneNotifications.h"

namespace apps {

namespace fs = std::filesystem;

namespace {

class NoteKeeper : public ZORVEL::ParseObserver {
 public:
  explicit NoteKeeper(std::deque<ZORVEL::ParseNote>& notes) : notes_(notes) {}
  void Noted(const ZORVEL::ParseNote& note) override { notes_.push_back(note); }

 private:
  std::deque<ZORVEL::ParseNote>& notes_;
};

}  // namespace

LoadedRepository::LoadedRepository(const fs::path& root) : root_(root), settings_(root) {
  ZORVEL::SceneNotifications::Register();
  read();
}

LoadedRepository::~LoadedRepository() {
  ZORVEL::SceneNotifications::Unregister();
  ZORVEL::Selection2::Reset();
  ZORVEL::Data2::Clear();
}

void LoadedRepository::read() {
  ZORVEL::Data2::Clear();
  ZORVEL::Selection2::ClearAssets();
  notes_.clear();
  error_ = tryRead();
}

std::string LoadedRepository::tryRead() {
  std::error_code ignored;
  if (!fs::is_directory(root_, ignored)) return root_.string() + " is not a folder.";
  NoteKeeper keeper(notes_);
  const ZORVEL::ObservedParsing observed(keeper);
  if (!ZORVEL::Parser2::ParseRepository(ZORVEL::Settings::GetPath())) {
    return notes_.empty() ? root_.string() + " cannot be read." : lineOf(notes_.back(), root_);
  }
  ZORVEL::Data2::SetValidated(true);
  return "";
}

}  // namespace apps
