#pragma once

#include <QImage>
#include <QPoint>
#include <QStringList>
#include <QTreeWidget>
#include <ostream>

#include "tests/support/LoadedRepositoryFixture.h"
#include "tests/ui/CommandLog.h"
#include "tests/ui/WindowRepository.h"
#include "ui/MainWindowClass.h"

/// So that a failed comparison shows texts, not codes.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

namespace support {

/// A test that uses the main window with mouse and keys, which go in where the window system delivers them. Elements
/// are named by the title of their tab and the name they show.
class WindowFixture : public LoadedRepositoryFixture {
 protected:
  void SetUp() override;
  void TearDown() override;

  const WindowRepository& files() const { return files_; }
  CommandLog& commands() { return commands_; }
  static ZORVEL::CharacterData& anna();
  static ZORVEL::MainWindowClass& window() { return *ZORVEL::MainWindowClass::window; }
  static ZORVEL::CharacterTree& tree() { return *window().GetCharacterWidget().GetControl(); }
  static ZORVEL::ScrollPanel& strip() { return *window().GetClothWidget().GetControl(); }
  static ZORVEL::TabControl& tabs() { return *window().GetGeneralSelectorWidget().GetControl(); }
  static const QPushButton& createButton() { return *window().GetPlacementWidget().GetControl(); }

  /// As the action does; the repository is read when it was not yet.
  static void open();
  /// Opens and clicks through the tree to Anna's blouse: pose p1, skin s1, style m1, assets a2, a5, g1m2. The commands
  /// so far are forgotten.
  void openWithBlouse();
  /// Handles what is waiting.
  static void settle();

  static void click(const QWidget& widget, const QPoint& at);
  static void click(const QWidget& widget) { click(widget, widget.rect().center()); }
  static void key(Qt::Key key, Qt::KeyboardModifiers keys = {});
  /// What a control looks like now.
  static QImage shown(const QWidget& widget);
  /// Brings a point of a control into view that a scrolling panel holds.
  static void scrollTo(const QWidget& widget, const QPoint& at);

  /// Null when there is none. A clothing is found under its character.
  static QTreeWidgetItem* node(const QString& character, const QString& clothing = QString());
  static void clickNode(QTreeWidgetItem* node);
  static QStringList titles();
  static void openTab(const QString& title);
  /// Looks at it: it is the current one afterwards. So do those that ask about its elements.
  static const ZORVEL::MainWindowGeneralPage& page(const QString& title);
  static const ZORVEL::MainWindowElementBase& element(const QString& title, const QString& name);
  static void clickBox(const QString& title, const QString& name);
  static void clickPicture(const QString& title, const QString& name);
  /// In the order they stand.
  static QStringList names(const QString& title);
  static QStringList checked(const QString& title);
  static QStringList stripNames();

  static QString info() { return window().GetCharacterInfo().GetControl()->text(); }
  /// Ids of character, clothing, pose, skin and style, then those of the assets; "-" for none.
  static QString selection();

 private:
  WindowRepository files_;
  CommandLog commands_;
};

}  // namespace support
