#include "tests/ui/WindowFixture.h"

#include <QScrollArea>
#include <QtTest/QtTest>

#include "core/Settings.h"
#include "host/application/Application.h"
#include "host/modes/CommandModes.h"
#include "host/services/FileDialog.h"
#include "model/CharacterData.h"
#include "model/Data2.h"
#include "model/Selection2.h"
#include "plugin/Commands.h"
#include "ui/PictureCache.h"

namespace support {

namespace {

/// Only what has no picture is known by its box alone.
QString nameOf(const ZORVEL::MainWindowElementBase& element) {
  const ZORVEL::PictureBox* picture = element.GetPicture();
  return picture != nullptr ? picture->accessibleName() : element.GetCheckBox()->text();
}

}  // namespace

using ZORVEL::Data2;
using ZORVEL::MainWindowClass;
using ZORVEL::Selection2;

void WindowFixture::SetUp() {
  LoadedRepositoryFixture::SetUp();
  Data2::Clear();
  Selection2::Reset();
  Selection2::SetStyle(nullptr);
  ZORVEL::Settings::StorePath(files_.root().c_str());
  ASSERT_TRUE(ZORVEL::Commands::ValidateData());
  clearLog();
  commands().clear();
}

void WindowFixture::TearDown() {
  host::Application::instance().modes().returnToStandard();
  host::Application::instance().fileDialog().setProvider({});
  ZORVEL::MaxForm::DeleteAll();
  EXPECT_EQ(MainWindowClass::window, nullptr);
  settle();
  ZORVEL::PictureCache::Instance().Clear();
  LoadedRepositoryFixture::TearDown();
}

ZORVEL::CharacterData& WindowFixture::anna() { return *Data2::GetCharacter(L"c1"); }

void WindowFixture::open() {
  ZORVEL::Commands::CallMainWindow();
  ASSERT_NE(MainWindowClass::window, nullptr);
  ASSERT_TRUE(QTest::qWaitForWindowActive(MainWindowClass::window));
  settle();
}

void WindowFixture::openWithBlouse() {
  open();
  clickNode(node("Anna", "Blouse"));
  ASSERT_EQ(selection(), "c1 kb p1 s1 m1 a2 a5 g1m2");
  commands().clear();
}

void WindowFixture::settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void WindowFixture::scrollTo(const QWidget& widget, const QPoint& at) {
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    auto* area = qobject_cast<QScrollArea*>(above);
    if (area == nullptr || !area->widget()->isAncestorOf(&widget)) continue;
    const QPoint place = widget.mapTo(area->widget(), at);
    area->ensureVisible(place.x(), place.y(), 10, 10);
  }
}

QImage WindowFixture::shown(const QWidget& widget) { return const_cast<QWidget&>(widget).grab().toImage(); }

void WindowFixture::click(const QWidget& widget, const QPoint& at) {
  scrollTo(widget, at);
  ASSERT_TRUE(widget.visibleRegion().contains(at)) << "nobody could click there";
  QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, widget.mapTo(&window(), at));
  settle();
}

void WindowFixture::key(Qt::Key key, Qt::KeyboardModifiers keys) {
  QTest::keyClick(window().windowHandle(), key, keys);
  settle();
}

QTreeWidgetItem* WindowFixture::node(const QString& character, const QString& clothing) {
  for (int i = 0; i < tree().topLevelItemCount(); ++i) {
    QTreeWidgetItem* top = tree().topLevelItem(i);
    if (top->text(0) != character) continue;
    if (clothing.isEmpty()) return top;
    for (int j = 0; j < top->childCount(); ++j) {
      if (top->child(j)->text(0) == clothing) return top->child(j);
    }
  }
  return nullptr;
}

void WindowFixture::clickNode(QTreeWidgetItem* node) {
  ASSERT_NE(node, nullptr);
  if (node->parent() != nullptr) node->parent()->setExpanded(true);
  click(*tree().viewport(), tree().visualItemRect(node).center());
}

QStringList WindowFixture::titles() {
  QStringList all;
  for (int i = 0; i < tabs().count(); ++i) all.append(tabs().tabText(i));
  return all;
}

void WindowFixture::openTab(const QString& title) {
  const int index = titles().indexOf(title);
  ASSERT_GE(index, 0) << title.toStdString();
  click(*tabs().tabBar(), tabs().tabBar()->tabRect(index).center());
  ASSERT_EQ(tabs().currentIndex(), index);
}

const ZORVEL::MainWindowGeneralPage& WindowFixture::page(const QString& title) {
  const int index = titles().indexOf(title);
  if (index < 0) throw std::runtime_error("no such tab: " + title.toStdString());
  tabs().setCurrentIndex(index);
  return *window().GetGeneralSelectorWidget().GetPages().at(static_cast<std::size_t>(index));
}

const ZORVEL::MainWindowElementBase& WindowFixture::element(const QString& title, const QString& name) {
  const int index = names(title).indexOf(name);
  if (index < 0) throw std::runtime_error("no such element: " + name.toStdString());
  return *page(title).GetElements().at(static_cast<std::size_t>(index));
}

void WindowFixture::clickBox(const QString& title, const QString& name) {
  openTab(title);
  click(*element(title, name).GetCheckBox(), QPoint(6, 6));
}

void WindowFixture::clickPicture(const QString& title, const QString& name) {
  openTab(title);
  click(*element(title, name).GetPicture());
}

QStringList WindowFixture::names(const QString& title) {
  QStringList all;
  for (const auto& element : page(title).GetElements()) all.append(nameOf(*element));
  return all;
}

QStringList WindowFixture::checked(const QString& title) {
  QStringList all;
  for (const auto& element : page(title).GetElements()) {
    if (element->isAvailable() && element->GetCheckBox()->isChecked()) {
      all.append(nameOf(*element));
    }
  }
  return all;
}

QStringList WindowFixture::stripNames() {
  QStringList all;
  for (const auto& preview : window().GetClothWidget().GetElements()) {
    all.append(preview->GetPicture()->accessibleName());
  }
  return all;
}

QString WindowFixture::selection() {
  QStringList all;
  for (const wchar_t* id : {Selection2::GetCharacter(), Selection2::GetCloth(), Selection2::GetPose(),
                            Selection2::GetSkin(), Selection2::GetStyle()}) {
    all.append(id != nullptr && *id != L'\0' ? QString::fromWCharArray(id) : QStringLiteral("-"));
  }
  for (int i = 0; i < Selection2::GetAssetCount(); ++i) {
    const wchar_t* id = Data2::GetIdForUnique(Selection2::GetAsset(i));
    all.append(id != nullptr ? QString::fromWCharArray(id) : QStringLiteral("unknown"));
  }
  return all.join(' ');
}

}  // namespace support
