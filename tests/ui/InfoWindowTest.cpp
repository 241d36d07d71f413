#include <gtest/gtest.h>

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QtTest/QtTest>
#include <memory>
#include <thread>

#include "plugin/DebugWindow.h"
#include "plugin/DebugWindowClass.h"
#include "tests/support/LogStoreFixture.h"

namespace {

using ZORVEL::Debug;
using ZORVEL::DebugWindowClass;
namespace DebugWindow = ZORVEL::DebugWindow;

const QStringList HEADER = {"ZORVEL Info Window...", "04.04.2014", "base Setting: Max 2013"};

class InfoWindow : public support::LogStoreFixture {
 protected:
  void TearDown() override {
    ZORVEL::MaxForm::DeleteAll();
    EXPECT_EQ(DebugWindowClass::window, nullptr);
    LogStoreFixture::TearDown();
  }
  static QPlainTextEdit& textBox(const QWidget& window) { return *window.findChild<QPlainTextEdit*>(); }
  static QStringList lines(const QWidget& window) { return textBox(window).toPlainText().split('\n'); }
  static QStringList lines() { return lines(*DebugWindowClass::window); }
};

TEST_F(InfoWindow, IsAFixedDialogWithAHeaderAndReadOnlyText) {
  DebugWindow::CreateDebugWindow();
  DebugWindowClass& window = *DebugWindowClass::window;
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  EXPECT_EQ(window.windowTitle(), "ZORVEL Info Window");
  EXPECT_EQ(QSize(window.GetWidth(), window.GetHeight()), QSize(400, 800));
  EXPECT_EQ(window.minimumSize(), window.maximumSize());
  EXPECT_FALSE(window.isModal());
  EXPECT_FALSE(window.windowFlags() &
               (Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint));
  EXPECT_EQ(textBox(window).geometry(), QRect(0, 0, 385, 765));
  EXPECT_TRUE(textBox(window).verticalScrollBar()->isVisible());
  EXPECT_TRUE(textBox(window).horizontalScrollBar()->isVisible());
  QTest::keyClicks(&textBox(window), "typed");
  EXPECT_EQ(lines(), HEADER + QStringList{""});
}

TEST_F(InfoWindow, ShowsEachTextAsALineWhateverStandsInIt) {
  DebugWindow::AddDebugWindowMessage(L"before there is a window");
  DebugWindow::CreateDebugWindow();
  for (const wchar_t* text : {L"abc", L"<b>def</b>", L"", static_cast<const wchar_t*>(nullptr), L"\u05d0\u4e2d",
                              L"an id\r\nforged\u2028line"}) {
    DebugWindow::AddDebugWindowMessage(text);
  }
  const QStringList expected =
      HEADER +
      QStringList{"abc", "<b>def</b>", "", "", QString::fromUtf8("א中"), QString::fromUtf8("an id��forged�line"), ""};
  EXPECT_EQ(lines(), expected);
  DebugWindow::AddDebugWindowMessage(std::wstring(1000000, L'x').c_str());
  EXPECT_EQ(lines().size(), expected.size() + 1);
  EXPECT_LT(lines().at(expected.size() - 1).size(), 20000);
}

TEST_F(InfoWindow, GoesOnTakingTextWhenClosedUntilANewOneReplacesIt) {
  DebugWindow::FreeDebugWindow();
  DebugWindow::CreateDebugWindow();
  DebugWindowClass* first = DebugWindowClass::window;
  DebugWindow::FreeDebugWindow();
  EXPECT_FALSE(first->isVisible());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_EQ(DebugWindowClass::window, first);
  DebugWindow::AddDebugWindowMessage(L"one");
  first->ShowModeless();

  DebugWindow::CreateDebugWindow();
  ASSERT_NE(DebugWindowClass::window, first);
  EXPECT_TRUE(first->isVisible());
  DebugWindow::AddDebugWindowMessage(L"two");
  EXPECT_EQ(lines(*first), (HEADER + QStringList{"one", ""}));
  EXPECT_EQ(lines(), (HEADER + QStringList{"two", ""}));
}

TEST_F(InfoWindow, GoesWithTheWindowItBelongsTo) {
  auto parent = std::make_unique<QWidget>();
  DebugWindow::CreateDebugWindow();
  DebugWindowClass::window->setParent(parent.get());
  parent.reset();
  EXPECT_EQ(DebugWindowClass::window, nullptr);
  DebugWindow::AddDebugWindowMessage(L"nobody listens");
  DebugWindow::FreeDebugWindow();
}

TEST_F(InfoWindow, TheRecordingSinkOpensAndFeedsItFromItsOwnThreadOnly) {
  Debug::AddDebugMessage(ZORVEL::DEBUG_INFO, L"early");
  Debug::ShowInfoWindow();
  const DebugWindowClass* window = DebugWindowClass::window;
  ASSERT_NE(window, nullptr);
  Debug::AddDebugMessage(ZORVEL::DEBUG_WARNING, L"here");
  std::thread([] {
    Debug::AddDebugMessage(ZORVEL::DEBUG_INFO, L"elsewhere");
    Debug::ShowInfoWindow();
  }).join();
  DebugWindow::FreeDebugWindow();
  Debug::ShowInfoWindow();
  EXPECT_EQ(DebugWindowClass::window, window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(lines(), (HEADER + QStringList{"early", "here", ""}));
  EXPECT_EQ(countLogged(L"elsewhere"), 1);
}

TEST_F(InfoWindow, KeepsTheLastHundredThousandLinesAndWhatIsReadStaysInView) {
  DebugWindow::CreateDebugWindow();
  QPlainTextEdit& box = textBox(*DebugWindowClass::window);
  const auto add = [](int from, int to) {
    for (int i = from; i < to; ++i) DebugWindow::AddDebugWindowMessage(std::to_wstring(i).c_str());
  };
  add(0, 1000);
  EXPECT_EQ(box.verticalScrollBar()->value(), box.verticalScrollBar()->maximum());
  box.verticalScrollBar()->setValue(200);
  add(1000, 1100);
  EXPECT_EQ(box.verticalScrollBar()->value(), 200);
  add(1100, 120000);
  EXPECT_EQ(box.blockCount(), 100000);
  const QStringList kept = lines();
  EXPECT_EQ(kept.at(0), "20001");
  EXPECT_EQ(kept.at(kept.size() - 2), "119999");
}

}  // namespace
