#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/Debug.h"

namespace ZORVEL {

struct LogEntry {
  DEBUG_TYPE level;
  std::wstring text;
};

/// The module's one list of recorded messages, oldest first. It exists between Create and Free; without it messages are
/// dropped. With the shipped log sink it stays empty. All operations may be called from any thread.
class LogStore {
 public:
  /// Starts with an empty list; an earlier one is given up. False when memory is short: there is no store then.
  static bool Create();
  /// Does nothing when there is no store.
  static void Free();
  static bool Exists();

  /// Never throws; a message that memory has no room for is lost.
  static void Add(DEBUG_TYPE level, const wchar_t* text);
  /// Told of every message after it was recorded, in the thread that logged it; it may log itself. Empty for nobody.
  using Listener = std::function<void(DEBUG_TYPE level, const wchar_t* text)>;
  static void SetListener(Listener listener);
  /// A copy, so that it may be read while messages go on arriving. Empty without a store.
  static std::vector<LogEntry> Entries();
  /// Forgets the messages and keeps the store.
  static void Clear();
};

}  // namespace ZORVEL
