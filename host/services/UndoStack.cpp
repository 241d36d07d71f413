#include "host/services/UndoStack.h"

namespace host {

namespace {

/// While steps are played back, nothing that they do is recorded.
class Replay {
 public:
  explicit Replay(bool& flag) : flag_(flag) { flag_ = true; }
  ~Replay() { flag_ = false; }
  Replay(const Replay&) = delete;
  Replay& operator=(const Replay&) = delete;

 private:
  bool& flag_;
};

template <class Entries>
std::vector<std::wstring> names(const Entries& entries) {
  std::vector<std::wstring> result;
  for (const auto& entry : entries) result.push_back(entry.name);
  return result;
}

}  // namespace

void UndoStack::begin() {
  if (depth_++ == 0) ++begun_;
}

bool UndoStack::put(std::unique_ptr<RestoreObj> step) {
  if (!recording()) return false;
  open_.push_back(std::move(step));
  return true;
}

void UndoStack::accept(const std::wstring& name) {
  if (depth_ == 0 || --depth_ > 0 || open_.empty()) return;
  redo_.clear();
  undo_.push_back({name, std::move(open_)});
  open_.clear();
}

void UndoStack::cancel() {
  if (depth_ == 0) return;
  depth_ = 0;
  Entry entry{L"", std::move(open_)};
  open_.clear();
  takeBack(entry);
}

bool UndoStack::undo() {
  if (undo_.empty() || depth_ > 0 || replaying_) return false;
  Entry entry = std::move(undo_.back());
  undo_.pop_back();
  takeBack(entry);
  redo_.push_back(std::move(entry));
  return true;
}

bool UndoStack::redo() {
  if (redo_.empty() || depth_ > 0 || replaying_) return false;
  Entry entry = std::move(redo_.back());
  redo_.pop_back();
  makeAgain(entry);
  undo_.push_back(std::move(entry));
  return true;
}

std::vector<std::wstring> UndoStack::undoNames() const { return names(undo_); }

std::vector<std::wstring> UndoStack::redoNames() const { return names(redo_); }

void UndoStack::clear() {
  undo_.clear();
  redo_.clear();
  open_.clear();
  depth_ = 0;
}

void UndoStack::takeBack(Entry& entry) {
  const Replay replay(replaying_);
  for (auto step = entry.steps.rbegin(); step != entry.steps.rend(); ++step) (*step)->Restore(1);
}

void UndoStack::makeAgain(Entry& entry) {
  const Replay replay(replaying_);
  for (auto& step : entry.steps) step->Redo();
}

}  // namespace host
