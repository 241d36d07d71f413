#include "host/services/Change.h"

#include <hold.h>

#include <utility>

namespace host {

namespace {

class Change : public RestoreObj {
 public:
  Change(std::function<void()> undo, std::function<void()> redo) : undo_(std::move(undo)), redo_(std::move(redo)) {}
  void Restore(int /*isUndo*/) override { undo_(); }
  void Redo() override { redo_(); }

 private:
  std::function<void()> undo_;
  std::function<void()> redo_;
};

}  // namespace

void applyChange(std::function<void()> undo, std::function<void()> redo) {
  redo();
  theHold.Put(new Change(std::move(undo), std::move(redo)));
}

}  // namespace host
