#pragma once

#include <QCheckBox>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWidget>
#include <memory>
#include <vector>

namespace bench {

/// Plain widgets as many as the main window has, without pictures, at the same places: what it is measured against.
class PlainWindow {
 public:
  PlainWindow();

  /// Tears the pages from that one on down and makes them again.
  void rebuildFrom(int page);
  /// Changes as many check states, page by page, over and over.
  void changeCheckStates(int count);

 private:
  void addPage(int page);

  QWidget window_;
  QTabWidget* tabs_;
  std::vector<std::vector<QCheckBox*>> boxes_;  // by page
};

/// A tree in a window of its own, with two columns of names: parents, and children below each.
std::unique_ptr<QTreeWidget> plainTree(int parents, int children);

}  // namespace bench
