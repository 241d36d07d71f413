#include <vector>

#include "core/LogStore.h"

/// Only in the diagnostic module: hands each recorded message from number `first` on to `take`, oldest first.
extern "C" void ModuleLogLines(int first, void (*take)(void* to, int level, const wchar_t* text), void* to);

void ModuleLogLines(int first, void (*take)(void* to, int level, const wchar_t* text), void* to) {
  const std::vector<ZORVEL::LogEntry> entries = ZORVEL::LogStore::Entries();
  for (std::size_t i = first < 0 ? 0 : static_cast<std::size_t>(first); i < entries.size(); ++i) {
    take(to, entries[i].level, entries[i].text.c_str());
  }
}
