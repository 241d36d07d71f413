#pragma once

namespace ZORVEL {

enum DEBUG_TYPE : int {
  DEBUG_INFO = 0,     ///< progress, and the value that follows such a note
  DEBUG_WARNING = 1,  ///< misuse that the caller survives
  DEBUG_ERROR = 2     ///< an operation that is abandoned
};

/// The one place that every diagnostic passes through. Which source is linked decides what becomes of it: Debug.cpp
/// drops all messages (that is what ships), DebugRecording.cpp keeps them in the log store and shows them in the info
/// window.
class Debug {
 public:
  /// May be called from any thread and never fails. The text stays the caller's; null counts as empty.
  static void AddDebugMessage(DEBUG_TYPE level, const wchar_t* text);
  /// Opens the info window, with what was recorded so far, or shows it again. Only where messages are recorded and the
  /// window toolkit runs. User-interface thread.
  static void ShowInfoWindow();
};

}  // namespace ZORVEL
