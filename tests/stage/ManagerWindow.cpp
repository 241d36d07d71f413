#include "tests/stage/ManagerWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QtTest/QtTest>

namespace support {

namespace {

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

void clickAt(QWidget* widget, const QPoint& pixel) {
  QTest::mouseClick(widget, Qt::LeftButton, {}, pixel);
  settle();
}

QTreeWidgetItem* childNamed(const QTreeWidgetItem& parent, const QString& name) {
  for (int i = 0; i < parent.childCount(); ++i) {
    if (parent.child(i)->text(0) == name) return parent.child(i);
  }
  return nullptr;
}

}  // namespace

QWidget* ManagerWindow::find() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && widget->windowTitle().startsWith("ZORVEL Manager 1.0 - ")) return widget;
  }
  return nullptr;
}

ManagerWindow::ManagerWindow() : window_(find()) { EXPECT_NE(window_, nullptr) << "the main window is not open"; }

template <class Button, class Text>
Button* ManagerWindow::visible(const QString& name, Text text) const {
  for (Button* button : window_->findChildren<Button*>()) {
    if (button->isVisible() && text(*button) == name) return button;
  }
  ADD_FAILURE() << "not to be seen: " << name.toStdString();
  return nullptr;
}

QTreeWidgetItem* ManagerWindow::character(const QString& name) const {
  return childNamed(*window_->findChild<QTreeWidget*>()->invisibleRootItem(), name);
}

void ManagerWindow::click(const QTreeWidgetItem* item) {
  ASSERT_NE(item, nullptr);
  QTreeWidget* tree = item->treeWidget();
  clickAt(tree->viewport(), tree->visualItemRect(item).center());
}

void ManagerWindow::chooseCharacter(const QString& name) { click(character(name)); }

void ManagerWindow::chooseCloth(const QString& characterName, const QString& name) {
  QTreeWidgetItem* parent = character(characterName);
  ASSERT_NE(parent, nullptr);
  parent->setExpanded(true);
  click(childNamed(*parent, name));
}

void ManagerWindow::clickPicture(const QString& name) {
  auto* picture = visible<QAbstractButton>(name, [](const QAbstractButton& one) { return one.accessibleName(); });
  ASSERT_NE(picture, nullptr);
  clickAt(picture, QPoint(picture->width() / 2, 20));
}

void ManagerWindow::openTab(const QString& name) {
  auto* bar = window_->findChild<QTabBar*>();
  for (int i = 0; i < bar->count(); ++i) {
    if (bar->tabText(i) == name) return clickAt(bar, bar->tabRect(i).center());
  }
  ADD_FAILURE() << "no tab " << name.toStdString();
}

void ManagerWindow::clickBox(const QString& name) {
  auto* box = visible<QCheckBox>(name, [](const QCheckBox& one) { return one.text(); });
  ASSERT_NE(box, nullptr);
  clickAt(box, QPoint(8, 8));
}

bool ManagerWindow::isChecked(const QString& name) {
  const auto* box = visible<QCheckBox>(name, [](const QCheckBox& one) { return one.text(); });
  return box != nullptr && box->isChecked();
}

void ManagerWindow::create() {
  auto* button = visible<QPushButton>("Create", [](const QPushButton& one) { return one.text(); });
  ASSERT_NE(button, nullptr);
  clickAt(button, button->rect().center());
}

QString ManagerWindow::choice() const {
  for (const QLabel* label : window_->findChildren<QLabel*>()) {
    if (label->text().startsWith("Character: ")) return label->text();
  }
  return QString();
}

}  // namespace support
