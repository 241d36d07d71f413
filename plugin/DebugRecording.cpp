#include <QApplication>
#include <QThread>
#include <exception>

#include "core/Debug.h"
#include "core/LogStore.h"
#include "plugin/DebugWindow.h"
#include "plugin/DebugWindowClass.h"

namespace ZORVEL {

namespace {

/// Where alone a window may be touched. False while no toolkit runs.
bool IsUserInterfaceThread() {
  const QCoreApplication* application = QCoreApplication::instance();
  return application != nullptr && application->thread() == QThread::currentThread();
}

void AddRecordedMessages() {
  for (const LogEntry& entry : LogStore::Entries()) DebugWindow::AddDebugWindowMessage(entry.text.c_str());
}

}  // namespace

void Debug::AddDebugMessage(DEBUG_TYPE level, const wchar_t* text) {
  LogStore::Add(level, text);
  if (!IsUserInterfaceThread()) return;
  try {
    DebugWindow::AddDebugWindowMessage(text);
  } catch (const std::exception&) {
    // Losing a line is better than failing the operation that reports it.
  }
}

void Debug::ShowInfoWindow() {
  if (!IsUserInterfaceThread()) return;
  if (DebugWindowClass::window == nullptr) {
    DebugWindow::CreateDebugWindow();
    AddRecordedMessages();
  } else {
    DebugWindowClass::window->ShowModeless();
    DebugWindowClass::window->Activate();
  }
}

}  // namespace ZORVEL
