#pragma once

#include <QTabWidget>
#include <QTreeWidget>
#include <QWidget>

namespace bench {

/// The plug-in's main window, open on the picture repository of that many characters, and what a user does in it.
/// Nothing is chosen at first. Each step ends when everything that it caused is done and drawn.
class OpenMainWindow {
 public:
  explicit OpenMainWindow(int characters);
  ~OpenMainWindow();
  OpenMainWindow(const OpenMainWindow&) = delete;
  OpenMainWindow& operator=(const OpenMainWindow&) = delete;

  // Of the first character.
  void chooseCharacter();
  void chooseCloth(int cloth);
  void showTab(int tab);
  /// Clicks the check box of an element of a tab that is shown.
  void clickBox(int tab, int element);

 private:
  void click(const QTreeWidgetItem& item);
  QTabWidget& tabs() const;

  QWidget* window_ = nullptr;
  QTreeWidget* tree_ = nullptr;
};

/// With the events that are still to come, and everything that waits to be destroyed.
void settle();

/// Closes and destroys it.
void closeMainWindow();

}  // namespace bench
