#include "apps/guide/WindowDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QtTest/QTest>
#include <stdexcept>

#include "host/files/PictureFile.h"
#include "host/files/PrintableText.h"

namespace guide {

namespace {

[[noreturn]] void fail(const QString& what) {
  // What is open goes away in its order.
  throw std::runtime_error(what.toStdString());
}

template <class Widget, class Matches>
Widget& find(const QWidget& within, const QString& what, Matches matches) {
  for (Widget* widget : within.findChildren<Widget*>()) {
    if (widget->isVisible() && matches(*widget)) return *widget;
  }
  fail("there is no " + what);
}

template <class Widget>
Widget& named(const QWidget& within, const QString& accessibleName) {
  return find<Widget>(within, accessibleName,
                      [&](const Widget& widget) { return widget.accessibleName() == accessibleName; });
}

QTreeWidgetItem& nodeOf(const QTreeWidget& tree, const QString& name) {
  const QList<QTreeWidgetItem*> found = tree.findItems(name, Qt::MatchExactly);
  if (found.isEmpty()) fail("there is no character " + name);
  return *found.front();
}

void clickNode(QTreeWidget& tree, const QTreeWidgetItem& node) {
  tree.scrollToItem(&node);
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(&node).center());
}

void save(const QImage& image, const std::filesystem::path& file) {
  const std::string error = host::writePicture(image, file);
  if (!error.empty()) fail(QString::fromStdString(file.string() + ": " + error));
}

}  // namespace

WindowDriver::WindowDriver(stage::StageWindow& stage, std::filesystem::path folder)
    : stage_(stage), folder_(std::move(folder)) {}

void WindowDriver::openWindow() {
  if (stage_.quickAccess().actions().isEmpty()) fail("the plug-in has put no button into the tool bar");
  stage_.quickAccess().actions().front()->trigger();
  QTest::qWait(50);
}

QWidget& WindowDriver::window() const {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && widget->windowTitle().startsWith("ZORVEL Manager")) return *widget;
  }
  fail("the window did not open");
}

QTreeWidget& WindowDriver::tree() const { return named<QTreeWidget>(window(), "Characters and their clothing"); }

QTabWidget& WindowDriver::tabs() const { return named<QTabWidget>(window(), "Elements to choose from"); }

void WindowDriver::chooseCharacter(const QString& name) { clickNode(tree(), nodeOf(tree(), name)); }

void WindowDriver::chooseClothing(const QString& character, const QString& clothing) {
  QTreeWidgetItem& parent = nodeOf(tree(), character);
  parent.setExpanded(true);
  for (int i = 0; i < parent.childCount(); ++i) {
    if (parent.child(i)->text(0) == clothing) return clickNode(tree(), *parent.child(i));
  }
  fail(character + " has no clothing " + clothing);
}

void WindowDriver::showTab(const QString& title) {
  for (int i = 0; i < tabs().count(); ++i) {
    if (tabs().tabText(i) == title) return tabs().setCurrentIndex(i);
  }
  fail("there is no page " + title);
}

void WindowDriver::tick(const QString& text) {
  auto& box =
      find<QCheckBox>(*tabs().currentWidget(), "box " + text, [&](const QCheckBox& one) { return one.text() == text; });
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(7, 7));
}

void WindowDriver::pressCreate() {
  auto& button = find<QAbstractButton>(window(), "button Create",
                                       [](const QAbstractButton& one) { return one.text() == "Create"; });
  QTest::mouseClick(&button, Qt::LeftButton);
}

QPoint WindowDriver::pixel(double x, double y) const {
  const QPoint inView(qRound(x * stage_.view().width()), qRound(y * stage_.view().height()));
  return stage_.view().mapTo(&stage_, inView);
}

void WindowDriver::movePointer(double x, double y) {
  QTest::mouseMove(stage_.windowHandle(), pixel(x, y));
  QTest::qWait(20);
}

void WindowDriver::click(double x, double y) {
  QTest::mouseClick(stage_.windowHandle(), Qt::LeftButton, {}, pixel(x, y));
}

void WindowDriver::undo() { QTest::keyClick(stage_.windowHandle(), Qt::Key_Z, Qt::ControlModifier); }

void WindowDriver::takeWindow(const QString& name) const {
  QTest::qWait(50);
  save(window().grab().toImage(), folder_ / (name.toStdString() + ".png"));
}

void WindowDriver::takeStage(const QString& name) const {
  stage_.catchUp();
  while (!stage_.view().picture().complete()) QTest::qWait(50);
  QTest::qWait(50);
  save(stage_.grab().toImage(), folder_ / (name.toStdString() + ".png"));
}

}  // namespace guide
