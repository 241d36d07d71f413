#pragma once

#include <hold.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace host {

/// What stands behind theHold: the recording that is open, and the lists of steps to undo and to redo.
class UndoStack {
 public:
  void begin();
  bool put(std::unique_ptr<RestoreObj> step);
  void accept(const std::wstring& name);
  void cancel();

  bool recording() const { return depth_ > 0 && !replaying_; }
  bool replaying() const { return replaying_; }
  int depth() const { return depth_; }
  /// How many recordings were begun, those inside others not counted.
  std::size_t recordingCount() const { return begun_; }

  /// False when there is nothing to undo, or while a recording is open.
  bool undo();
  bool redo();
  /// Oldest first; the last one is what undo takes back.
  std::vector<std::wstring> undoNames() const;
  /// The last one is what redo makes again.
  std::vector<std::wstring> redoNames() const;
  /// Forgets both lists; whatever only they kept alive ends.
  void clear();

 private:
  struct Entry {
    std::wstring name;
    std::vector<std::unique_ptr<RestoreObj>> steps;
  };

  void takeBack(Entry& entry);
  void makeAgain(Entry& entry);

  std::vector<std::unique_ptr<RestoreObj>> open_;
  std::vector<Entry> undo_;
  std::vector<Entry> redo_;
  int depth_ = 0;
  std::size_t begun_ = 0;
  bool replaying_ = false;
};

}  // namespace host
