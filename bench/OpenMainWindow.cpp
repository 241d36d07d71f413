#include "bench/OpenMainWindow.h"

#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QScrollBar>
#include <stdexcept>

#include "bench/PictureRepository.h"
#include "ui/MainWindow.h"
#include "ui/MaxForm.h"

namespace bench {

namespace {

QWidget* mainWindow() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->windowTitle().startsWith("ZORVEL Manager") && window->isVisible()) return window;
  }
  throw std::runtime_error("the main window did not open");
}

void press(QWidget& target, const QPoint& pixel) {
  const QPoint global = target.mapToGlobal(pixel);
  for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    QMouseEvent event(type, pixel, global, Qt::LeftButton,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
    QApplication::sendEvent(&target, &event);
  }
  settle();
}

}  // namespace

OpenMainWindow::OpenMainWindow(int characters) {
  PictureRepository::ofSize(characters).load();
  ZORVEL::MainWindow::OpenMainWindow();
  settle();
  window_ = mainWindow();
  tree_ = window_->findChild<QTreeWidget*>();
  if (tree_->topLevelItemCount() != characters) throw std::runtime_error("the window does not show all characters");
  tree_->topLevelItem(0)->setExpanded(true);
  settle();
}

OpenMainWindow::~OpenMainWindow() { closeMainWindow(); }

void OpenMainWindow::chooseCharacter() { click(*tree_->topLevelItem(0)); }

void OpenMainWindow::chooseCloth(int cloth) {
  click(*tree_->topLevelItem(0)->child(cloth));
  if (tabs().count() != PictureRepository::TABS)
    throw std::runtime_error("the window shows " + std::to_string(tabs().count()) + " tabs");
}

void OpenMainWindow::showTab(int tab) {
  tabs().setCurrentIndex(tab);
  settle();
}

void OpenMainWindow::clickBox(int tab, int element) {
  const QList<QCheckBox*> boxes = tabs().widget(tab)->findChildren<QCheckBox*>();
  press(*boxes.at(element), QPoint(8, 8));
}

void OpenMainWindow::click(const QTreeWidgetItem& item) {
  press(*tree_->viewport(), tree_->visualItemRect(&item).center());
}

QTabWidget& OpenMainWindow::tabs() const { return *window_->findChild<QTabWidget*>(); }

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void closeMainWindow() {
  mainWindow()->close();
  ZORVEL::MaxForm::DeleteAll();
  settle();
}

}  // namespace bench
