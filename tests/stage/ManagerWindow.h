#pragma once

#include <QAbstractButton>
#include <QTabWidget>
#include <QTreeWidget>
#include <QWidget>

namespace support {

/// The plug-in's main window as a user meets it: found by its caption, operated by the mouse, elements named by what
/// stands on the screen. What is not to be seen fails the test.
class ManagerWindow {
 public:
  /// Null while it is not open.
  static QWidget* find();

  ManagerWindow();

  void chooseCharacter(const QString& name);
  void chooseCloth(const QString& character, const QString& name);
  /// Of the strip, or of the page that is shown.
  void clickPicture(const QString& name);
  void openTab(const QString& name);
  void clickBox(const QString& name);
  bool isChecked(const QString& name);
  void create();
  /// The line at the top that says what is chosen.
  QString choice() const;

 private:
  QTreeWidgetItem* character(const QString& name) const;
  void click(const QTreeWidgetItem* item);
  template <class Button, class Text>
  Button* visible(const QString& name, Text text) const;

  QWidget* window_;
};

}  // namespace support
